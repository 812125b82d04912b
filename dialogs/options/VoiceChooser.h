#pragma once

#include "platform/SpeechEngine.h"

#include <QComboBox>
#include <QTimer>

namespace ondrilo {

/// Chooses a voice of the speech service, or none. The service may tell its voices while this is on show. A
/// chosen voice that is not among them (yet, or any more) stays chosen.
class VoiceChooser : public QComboBox {
    Q_OBJECT

  public:
    /// `none` stands before the voices, with the name `noneName`. `speech` outlives this.
    VoiceChooser(const SpeechEngine& speech, const QString& none, TextView noneName, TextView chosen);

    [[nodiscard]] Text Chosen() const;
    [[nodiscard]] bool KnowsVoices() const { return !waiting.isActive(); }

  Q_SIGNALS:
    /// By the person.
    void VoiceChosen(const Text& name);
    void VoicesKnown();

  private:
    void List();
    void Show(const QString& name, const QString& asText);

    const SpeechEngine& speech;
    QTimer waiting;
};

} // namespace ondrilo
