#include <gtest/gtest.h>

#include <QDir>
#include <memory>
#include <numeric>
#include <vector>

#include "ui/drawn_look.h"
#include "ui/symbol_image_provider.h"

namespace velmora {
namespace {

const QColor tint(0x12, 0x34, 0x56);

std::vector<QRgb> pixels(const QImage& image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    const auto* first = reinterpret_cast<const QRgb*>(argb.constBits());
    return {first, first + argb.sizeInBytes() / 4};
}

/// How much is drawn: 1 is one fully covered pixel.
double coverage(const QImage& image) {
    const auto add = [](double sum, QRgb pixel) { return sum + (qAlpha(pixel) / 255.0); };
    const std::vector<QRgb> all = pixels(image);
    return std::accumulate(all.begin(), all.end(), 0.0, add);
}

// Catches a drawing without content, in its own color or cut off, and a light one as thick as
// usual.
TEST(Symbols, areTintedOnTheirGridAndThinnerWhenLight) {
    const DrawnLook source;
    const QStringList files = QDir(QStringLiteral(":/velmora/symbols")).entryList();
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        SCOPED_TRACE(qUtf8Printable(name));
        const QImage small = source.symbol(name, {16, 16}, tint, SymbolWeight::regular);
        EXPECT_GT(coverage(small), 8);
        // Four pixels to a unit of the grid, whose outermost two units stay clear.
        const QImage large = source.symbol(name, {96, 96}, tint, SymbolWeight::regular);
        for (const QRgb pixel : pixels(large))
            EXPECT_TRUE(qAlpha(pixel) < 255 || pixel == tint.rgba()) << std::hex << pixel;
        EXPECT_NEAR(coverage(large), coverage(large.copy(7, 7, 82, 82)), 1e-6);
        const QImage light = source.symbol(name, {96, 96}, tint, SymbolWeight::light);
        const double ratio = coverage(light) / coverage(large);
        EXPECT_TRUE(name.endsWith(u".fill") ? ratio == 1 : ratio < 0.85) << ratio;
    }
}

// Catches a symbol that is stretched, in another color, or taken from a wrong address.
TEST(Symbols, theProviderReadsItsAddressAndRefusesAnyOther) {
    SymbolImageProvider provider(std::make_unique<DrawnLook>());
    QSize size;
    const auto request = [&](const char* id, QSize requested) {
        return provider.requestImage(QString::fromLatin1(id), &size, requested);
    };
    const QImage wide = request("xmark.circle.fill/regular/12345680", {60, 30});
    EXPECT_EQ(size, QSize(60, 30));
    EXPECT_EQ(pixels(wide.copy(22, 15, 1, 1)).front(), 0x80123456U);
    EXPECT_EQ(coverage(wide.copy(0, 0, 15, 30)), 0) << "stretched";
    EXPECT_EQ(request("iphone/light/000000ff", {0, 42}).size(), QSize(42, 42));
    for (const char* id : {"no.such.symbol/regular/000000ff", "iphone/heavy/000000ff", "iphone"})
        EXPECT_TRUE(request(id, {16, 16}).isNull()) << id;
}

// Catches a picture that is stretched, off its place or of another scale, and one without a size.
TEST(Pictures, anIconIsCentredAndAPointerHasItsTipInTheCorner) {
    SymbolImageProvider provider(std::make_unique<DrawnLook>());
    const QImage icon = provider.requestImage(QStringLiteral("applicationIcon"), nullptr, {80, 40});
    EXPECT_EQ(coverage(icon.copy(0, 0, 20, 40)) + coverage(icon.copy(60, 0, 20, 40)), 0);
    EXPECT_GT(coverage(icon.copy(20, 0, 40, 40)), 900);
    const QImage arrow = provider.requestImage(QStringLiteral("arrowPointer"), nullptr, {64, 64});
    EXPECT_NEAR(coverage(arrow), coverage(arrow.copy(0, 0, 28, 40)), 1e-6);
    EXPECT_GT(coverage(arrow.copy(0, 0, 4, 4)), 12) << "the tip is elsewhere";
    EXPECT_GT(coverage(arrow.copy(0, 32, 28, 8)), 8) << "too small";
    EXPECT_TRUE(DrawnLook().picture(SystemPicture::applicationIcon, {0, 5}).isNull());
}

}  // namespace
}  // namespace velmora
