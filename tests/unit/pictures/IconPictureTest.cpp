#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

namespace vorbel {
namespace {

class IconPictureTest : public testing::TestWithParam<int> {};

TEST_P(IconPictureTest, ItHasTheSizeThatItIsNamedAfter) {
    const QImage icon(QStringLiteral(VORBEL_PICTURES "/Icon%1.png").arg(GetParam()));
    EXPECT_EQ(icon.size(), QSize(GetParam(), GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, IconPictureTest, testing::Values(16, 22, 24, 32, 48, 64, 96, 128, 256, 512));

TEST(ScalableIconTest, DoesWithoutWhatNotEveryDesktopDraws) {
    QFile file(QStringLiteral(VORBEL_PICTURES "/pictures/Icon.svg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray source = file.readAll();
    EXPECT_TRUE(source.contains("<radialGradient"));
    for (const char* feature : {"filter", "clipPath", "mask"}) {
        EXPECT_FALSE(source.contains(feature)) << feature;
    }
}

} // namespace
} // namespace vorbel
