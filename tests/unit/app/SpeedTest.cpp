#include "app/command_line/Speed.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace vorbel {

namespace {

double speedFor(const char* value) {
    setenv("VORBEL_SPEED", value, 1);
    const double speed = speedFromEnvironment();
    unsetenv("VORBEL_SPEED");
    return speed;
}

// Numbers as they are written where a comma stands before the decimals. The system need not have such a
// locale: one is made that knows nothing else.
class DecimalComma {
public:
    DecimalComma() {
        std::filesystem::create_directories(folder_);
        const std::string source = (folder_ / "source").string();
        std::ofstream(source)
            << "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n";
        const std::string make = "localedef -c -i " + source + " -f ANSI_X3.4-1968 " +
                                 (folder_ / "comma").string() + " 2>/dev/null";
        static_cast<void>(std::system(make.c_str())); // NOLINT(cert-env33-c): a fixed command
        setenv("LOCPATH", folder_.c_str(), 1);
        std::setlocale(LC_NUMERIC, "comma");
    }
    ~DecimalComma() {
        std::setlocale(LC_NUMERIC, "C");
        unsetenv("LOCPATH");
        std::filesystem::remove_all(folder_);
    }
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;

private:
    std::filesystem::path folder_ = std::filesystem::path(testing::TempDir()) / "decimal-comma";
};

} // namespace

TEST(SpeedTest, IsThatOfTheEnvironment) {
    EXPECT_EQ(speedFor("8"), 8);
    EXPECT_EQ(speedFor("0.5"), 0.5);
    EXPECT_EQ(speedFor("0.1"), 0.1);
    EXPECT_EQ(speedFor("100"), 100);
    EXPECT_EQ(speedFromEnvironment(), 1);
}

TEST(SpeedTest, ThatIsNoSensibleNumberIsIgnored) {
    for (const char* nonsense : {"", "fast", "8x", "0", "0.09", "-3", "100.1", "1000", "nan", "inf", "2,5"}) {
        EXPECT_EQ(speedFor(nonsense), 1) << nonsense;
    }
}

TEST(SpeedTest, HasADecimalPointWhereNumbersAreWrittenWithACommaToo) {
    const DecimalComma locale;
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(speedFor("2.5"), 2.5);
    EXPECT_EQ(speedFor("2,5"), 1);
}

} // namespace vorbel
