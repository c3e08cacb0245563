#include <optional>

#include <QGuiApplication>
#include <QSurfaceFormat>
#include <gtest/gtest.h>

namespace {

// With VORBEL_OPENGL_ES in the environment all is drawn with OpenGL ES 3.0, as on small computers.
void chooseOpenGl() {
    if (qEnvironmentVariableIsSet("VORBEL_OPENGL_ES")) {
        QSurfaceFormat format;
        format.setRenderableType(QSurfaceFormat::OpenGLES);
        format.setVersion(3, 0);
        QSurfaceFormat::setDefaultFormat(format);
    }
}

// Made only when tests run: their names can be listed without a display.
class GuiEnvironment : public testing::Environment {
public:
    GuiEnvironment(int& argc, char** argv) : argc_(argc), argv_(argv) {}
    void SetUp() override {
        chooseOpenGl();
        app_.emplace(argc_, argv_);
    }
    void TearDown() override { app_.reset(); }

private:
    int& argc_;
    char** argv_;
    std::optional<QGuiApplication> app_;
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new GuiEnvironment(argc, argv)); // owned by the framework
    return RUN_ALL_TESTS();
}
