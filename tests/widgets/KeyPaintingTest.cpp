#include "keyboards/ui/DrawSymbol.h"
#include "keyboards/ui/KeyPainter.h"
#include "keyboards/ui/KeyPicture.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/Images.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

constexpr Color kBlue = 0xFF0000, kRed = 0x0000FF, kGreen = 0x00FF00; // 0x00BBGGRR
constexpr QRgb kBlueDot = qRgb(0, 0, 255), kRedDot = qRgb(255, 0, 0);
constexpr QSize kKey(100, 50);

COnScreenKey BlueKey(TextView type, TextView label, TextView output) {
    COnScreenKey key;
    key.data.type = type;
    key.data.label = label;
    key.data.output = output;
    key.data.backgroundColor = kBlue;
    key.data.textColor = kRed;
    return key;
}

KeyboardSettings Settings() {
    KeyboardSettings settings;
    settings.font = {"DejaVu Sans", 12};
    settings.predictionBackground = kGreen;
    return settings;
}

QImage PaintedKey(const COnScreenKey& key, const KeyboardSettings& settings = Settings(),
                  const QImage& picture = {}) {
    const auto face = MakeKeyFace(key, settings, false, picture);
    return Painted(kKey, 1, [&](QPainter& painter) { PaintKey(painter, QRect(QPoint(), kKey), face); });
}

TEST(KeyPainting, EverySymbolPaintsSomethingOfItsOwnInsideItsKeyAtEveryScale) {
    std::vector<QImage> drawn;
    for (const double scale : {1.0, 1.5, 2.0})
        for (const auto& row : kSymbolOutputs) {
            const QSize size(50 * row.halfHeights / 2, 50);
            const auto image = Painted(size, scale, [&](QPainter& painter) {
                DrawSymbol(painter, row.symbol, QRectF(QPointF(), QSizeF(size)), Qt::black);
            });
            const auto ink = InkOf(image);
            EXPECT_GT(ink.height(), 4 * scale) << row.output;
            EXPECT_TRUE(image.rect().adjusted(2, 2, -2, -2).contains(ink)) << row.output << " at " << scale;
            EXPECT_EQ(std::count(drawn.begin(), drawn.end(), image), 0) << row.output;
            drawn.push_back(image);
        }
}

TEST(KeyPainting, AKeyFillsItsPixelsWhollyAtUnevenScales) {
    const auto face = MakeKeyFace(BlueKey("TECLA_NORMAL", "", "a"), Settings(), false, {});
    const auto image = Painted({20, 20}, 1.5, [&](QPainter& painter) {
        PaintKey(painter, {3, 5, 9, 9}, face);
    });
    EXPECT_EQ(CountPixels(image, kBlueDot) + CountPixels(image, qRgb(255, 255, 255)), 30 * 30);
}

TEST(KeyPainting, AnInactiveKeyShowsItsMarksAndNeverItsText) {
    auto key = BlueKey("TECLA_NORMAL", "Frases", "frases.tec");
    key.data.active = 0;
    const auto ink = InkOf(PaintedKey(key), kBlueDot);
    EXPECT_FALSE(ink.isNull());
    EXPECT_TRUE(QRect(6, 34, 11, 11).contains(ink)) << "the mark of a link";

    key.data.output = "FRASES.TEC";
    EXPECT_TRUE(InkOf(PaintedKey(key), kBlueDot).isNull()) << "only a link in lower case has the mark";
    key.lastPageMark = true;
    // A font of 12 points makes it 3 wide; it ends 4 from the edge.
    EXPECT_EQ(InkOf(PaintedKey(key), kBlueDot), QRect(93, 4, 3, 42)) << "the bar of the last page";
}

TEST(KeyPainting, ALitKeySwapsItsColoursAndLosesItsGradientAndThePredictionBackground) {
    auto settings = Settings();
    settings.fillType = 1;
    settings.gradientColor = 0xFFFFFF;
    settings.gradientAngle = 90;
    auto key = BlueKey("TECLA_NORMAL", "", "a");
    const auto rest = PaintedKey(key, settings);
    EXPECT_GT(qRed(rest.pixel(50, 48)), qRed(rest.pixel(50, 1))) << "white comes from below";
    key.hovered = true;
    EXPECT_EQ(CountPixels(PaintedKey(key, settings), kRedDot), kKey.width() * kKey.height());

    auto prediction = BlueKey("TECLA_PREDICAO", "", "");
    EXPECT_EQ(PaintedKey(prediction).pixel(50, 25), qRgb(0, 255, 0));
    prediction.highlighted = true;
    EXPECT_EQ(PaintedKey(prediction).pixel(50, 25), kRedDot);
}

TEST(KeyPainting, APredictedWordStartsAtTheMarginAndAPlainLabelStandsInTheMiddle) {
    const auto word = InkOf(PaintedKey(BlueKey("TECLA_PREDICAO", "ola", "ola")), qRgb(0, 255, 0));
    EXPECT_NEAR(word.left(), 10, 2);
    const auto letter = InkOf(PaintedKey(BlueKey("TECLA_NORMAL", "m", "m")), kBlueDot);
    EXPECT_NEAR(letter.center().x(), 50, 2);
    const auto sentence = InkOf(PaintedKey(BlueKey("TECLA_NORMAL", "bom dia a todos", "x")), kBlueDot);
    EXPECT_NEAR(sentence.left(), 10, 2);
    EXPECT_GT(sentence.height(), letter.height() * 2) << "it takes several lines";
}

TEST(KeyPainting, APictureLeavesRoomForItsCaptionAndKeepsItsShape) {
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    auto key = BlueKey("TECLA_IMAGEM", "CAT_IMG_Casa\\porta.bmp", "x");
    auto settings = Settings();
    settings.imageMargin = 2;
    auto place = [&] {
        const auto isWhite = [](QRgb pixel) {
            return pixel == qRgb(255, 255, 255);
        };
        return PixelsWhere(PaintedKey(key, settings, picture), isWhite).first;
    };
    EXPECT_EQ(place(), QRect(27, 2, 46, 46)) << "as tall as the key but for the margins";

    key.data.imageText = "porta";
    const auto below = place();
    EXPECT_GT(below.top(), 12);
    EXPECT_NEAR(below.width(), below.height(), 1);
}

TEST(KeyPainting, TheDwellRingGrowsClockwiseFromTheTopAndLeavesTheMiddleFree) {
    const auto face = MakeKeyFace(BlueKey("TECLA_NORMAL", "", "a"), Settings(), false, {}); // its mark is red
    const auto ring = [&face](double progress) {
        return Painted(kKey, 2, [&](QPainter& painter) {
            PaintDwellRing(painter, QRect(QPoint(), kKey), face, progress);
        });
    };
    const QImage quarter = ring(0.25);
    EXPECT_EQ(InkOf(quarter), QRect(60, 10, 80, 80)) << "the full circle shows faintly: 4/5 of the height";
    const auto grown = [](const QImage& image, int x, int y) {
        return qBlue(image.pixel(x, y)) < 128;
    };
    EXPECT_TRUE(grown(quarter, 126, 24)) << "upper right";
    EXPECT_FALSE(grown(quarter, 126, 76) || grown(quarter, 73, 24)) << "lower right, upper left";
    EXPECT_TRUE(grown(ring(0.9), 73, 76)) << "lower left";
    EXPECT_EQ(ring(1).pixel(100, 50), qRgb(255, 255, 255));
}

TEST(KeyPicture, JoinsWhatLoadsAndWidensLowPicturesByWholeFactors) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder.Path() / "CAT_IMG_Casa");
    SavePicture(folder.Path() / "CAT_IMG_Casa/alta.bmp", {50, 100}, Qt::red);
    SavePicture(folder.Path() / "CAT_IMG_Casa/BAIXA.bmp", {10, 40}, Qt::blue);
    const QtPictures pictures{DataFolder(folder.Path())};

    const auto joined =
        LoadKeyPicture("CAT_IMG_Casa\\alta.bmp:CAT_IMG_Casa\\falta.bmp:CAT_IMG_Casa\\baixa.bmp", pictures);
    EXPECT_EQ(joined.size(), QSize(70, 100));
    EXPECT_EQ(joined.pixel(25, 50), kRedDot);
    EXPECT_EQ(joined.pixel(60, 95), kBlueDot);
    EXPECT_TRUE(LoadKeyPicture("CAT_IMG_Casa\\falta.bmp", pictures).isNull());
}

} // namespace
} // namespace ondrilo
