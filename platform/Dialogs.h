#pragma once

#include "platform/EntryList.h"
#include "platform/SimulatorDialog.h"
#include "text/Text.h"

#include <filesystem>
#include <functional>
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

/// Dialogs that the logic asks for by purpose; each answers with plain values. Nothing is the answer on
/// Cancel.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    /// "Seleccionar Perfil de Utilizador": the chosen name.
    [[nodiscard]] virtual std::optional<Text> ChooseProfile(const std::vector<Text>& names) = 0;
    /// "Novo Perfil de Utilizador": a name, without blanks at its ends, to which `objection` has none. An
    /// objection is shown and the dialog stays open; the empty text is none.
    [[nodiscard]] virtual std::optional<Text>
    AskProfileName(const std::function<Text(TextView name)>& objection) = 0;
    /// "Bloquear Alterações ao Sistema": what was typed, whether right or wrong.
    [[nodiscard]] virtual std::optional<Text> AskPassword() = 0;
    /// A text file that exists.
    [[nodiscard]] virtual std::optional<std::filesystem::path> ChooseTextFile() = 0;
    /// A folder that exists.
    [[nodiscard]] virtual std::optional<std::filesystem::path> ChooseFolder(TextView title) = 0;
    /// Shows and changes the entries; false on Cancel. What was changed until then is not undone here.
    [[nodiscard]] virtual bool EditEntries(EntryList& entries) = 0;
    /// "Simulador de Predição de Palavras"; returns when it is closed.
    virtual void SimulateWords(Simulator& simulator) = 0;
    /// "Métricas do Sistema": one line a metric.
    virtual void ShowMetrics(const std::vector<Text>& lines) = 0;
    /// Tells what the program is.
    virtual void ShowAbout() = 0;
};

} // namespace ondrilo
