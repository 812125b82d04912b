#include "dialogs/options/KeyPreview.h"

#include "keyboards/ui/Fill.h"
#include "keyboards/ui/KeyPainter.h"
#include "platform/DataFolder.h"
#include "platform/qt/QtConversion.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr int kLines = 7; // of the dialog's text, that the preview is tall

COnScreenKey Key(TextView type, TextView label, bool lit, const KeyboardSettings& settings) {
    COnScreenKey key;
    key.data.type = type;
    key.data.label = label;
    key.data.backgroundColor = settings.backgroundColor;
    key.data.textColor = settings.textColor;
    key.highlighted = lit;
    return key;
}

} // namespace

KeyPreview::KeyPreview(const OptionsDraft& draft) : draft(draft) {
    setObjectName("keyPreview");
    setAccessibleName(tr("Exemplo das teclas e do fundo da janela"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&draft, &OptionsDraft::Changed, this, [this] {
        LoadPicture();
        update();
    });
    LoadPicture();
}

QSize KeyPreview::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * kLines};
}

void KeyPreview::LoadPicture() {
    const auto& options = draft.Properties();
    const auto& name = options.Get(option::IMAGEM_FUNDO);
    if (name == picturePath)
        return;
    picturePath = name;
    picture = {};
    if (name.empty())
        return;
    std::filesystem::path path = ToUtf8(name);
    if (!path.is_absolute())
        path = DataFolder(options.dictionaryFolder).Find(name);
    picture.load(QString::fromStdString(path.string()));
}

void KeyPreview::PaintBackground(QPainter& painter) const {
    const auto& options = draft.Properties();
    const auto first = ToQColor(options.Get(option::COR_FUNDO_JANELA));
    const int fill = options.Get(option::TIPO_PREENCHIMENTO_JANELA);
    if (!picture.isNull())
        painter.drawImage(rect(), picture);
    else if (fill == 0)
        painter.fillRect(rect(), first);
    else if (fill == 1)
        FillGradient(painter, rect(), first, ToQColor(options.Get(option::COR_FUNDO_JANELA2)),
                     options.Get(option::ANGULO_DEGRADE_JANELA));
}

void KeyPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    PaintBackground(painter);
    const auto settings = MakeKeyboardSettings(draft.Properties(), draft.Access());
    const COnScreenKey keys[] = {
        Key("TECLA_NORMAL", "Tecla", false, settings),
        Key("TECLA_NORMAL", "Tecla Acesa", true, settings),
        Key("TECLA_PREDICAO", "Predição"_w, false, settings),
    };
    const QFontMetrics measures(ToQFont(settings.font));
    const int margin = fontMetrics().height();
    const int height = std::clamp(settings.keyHeight, 1, std::max(1, this->height() - 2 * margin));
    int x = margin;
    for (const auto& key : keys) {
        const int width = measures.horizontalAdvance(ToQString(key.data.label)) + 2 * settings.keyMargin;
        PaintKey(painter, QRect(x, (this->height() - height) / 2, width, height),
                 MakeKeyFace(key, settings, false, {}));
        x += width + margin;
    }
}

} // namespace ondrilo
