#pragma once

#include "platform/SimulatorDialog.h"
#include "text/Text.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace ondrilo {

enum class Answer { Yes, No, Cancel };

/// Modal boxes: they return when the person has answered; messages are handled meanwhile.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual void Show(TextView text) = 0;
    [[nodiscard]] virtual Answer AskYesNo(TextView question, Answer preselected = Answer::Yes) = 0;
    [[nodiscard]] virtual Answer AskYesNoCancel(TextView question) = 0;
};

/// Dialogs that the logic asks for by purpose; each answers with plain values.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    /// "Seleccionar Perfil de Utilizador": the chosen name, or nothing on Cancel.
    [[nodiscard]] virtual std::optional<Text> ChooseProfile(const std::vector<Text>& names) = 0;
    /// A text file that exists; nothing on Cancel.
    [[nodiscard]] virtual std::optional<std::filesystem::path> ChooseTextFile() = 0;
    /// "Simulador de Predição de Palavras"; returns when it is closed.
    virtual void SimulateWords(Simulator& simulator) = 0;
};

} // namespace ondrilo
