#include "dialogs/options/VoiceChooser.h"

#include "dialogs/options/WheelGuard.h"
#include "platform/qt/QtConversion.h"

#include <QAbstractItemView>

namespace ondrilo {
namespace {

constexpr int kAskAgain = 300; // milliseconds

} // namespace

VoiceChooser::VoiceChooser(const SpeechEngine& speech, const QString& none, TextView noneName,
                           TextView chosen)
    : speech(speech) {
    new WheelGuard(this);
    addItem(none, ToQString(noneName));
    Show(ToQString(chosen), ToQString(chosen));
    connect(this, &QComboBox::currentIndexChanged, this, [this] { Q_EMIT VoiceChosen(Chosen()); });
    connect(&waiting, &QTimer::timeout, this, &VoiceChooser::List);
    waiting.start(kAskAgain);
    List();
}

Text VoiceChooser::Chosen() const {
    return FromQString(currentData().toString());
}

void VoiceChooser::List() {
    const auto voices = speech.Voices();
    // Not under the person's fingers.
    if (voices.empty() || view()->isVisible())
        return;
    waiting.stop();
    {
        const QSignalBlocker quiet(this);
        const auto chosen = currentData().toString();
        while (count() > 1)
            removeItem(1);
        for (const auto& voice : voices)
            addItem(ToQString(voice), ToQString(voice));
        Show(chosen, chosen.isEmpty() ? chosen : tr("%1 (não disponível)").arg(chosen));
    }
    Q_EMIT VoicesKnown();
}

void VoiceChooser::Show(const QString& name, const QString& asText) {
    if (findData(name) < 0)
        addItem(asText, name);
    setCurrentIndex(findData(name));
}

} // namespace ondrilo
