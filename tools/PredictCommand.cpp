#include "platform/DataFolder.h"
#include "prediction/CWordPredictor.h"
#include "profiles/CUserProfileProperties.h"
#include "tools/Commands.h"

#include <charconv>
#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--data", "DIR", "the data folder"},
    {"--profile", "NAME", "whose options and vocabulary"},
    {"--count", "N", "most predictions a query; otherwise as many as the profile asks for"},
    {"--forms", "", "a query has any number of prefix forms"},
    {"--scores", "", "show the scores"},
};

/// The fields of a query; an empty one counts.
Tokens Fields(TextView line) {
    Tokens fields;
    for (;;) {
        const auto tab = line.find('\t');
        fields.emplace_back(line.substr(0, tab));
        if (tab == TextView::npos)
            return fields;
        line.remove_prefix(tab + 1);
    }
}

std::string Exactly(double score) {
    constexpr int digits = 17;
    char number[64];
    const auto end = std::to_chars(number, std::end(number), score, std::chars_format::general, digits);
    return {number, end.ptr};
}

class Session {
  public:
    explicit Session(const Arguments& arguments) : arguments(arguments) {
        const DataFolder folder(arguments.Required("--data"));
        const auto name = arguments.FromTerminal(arguments.Required("--profile"));
        if (!std::filesystem::is_directory(folder.Path()))
            throw std::runtime_error("there is no folder " + folder.Path().string());
        profile.Load(folder.Path(name + ".cfg"));
        const bool adapt = profile.IsOn(option::ADAPTACAO_UTILIZADOR);
        for (const auto& message : dictionary.LoadProfileDictionaries(folder, name, adapt))
            std::cerr << arguments.ToTerminal(message) << "\n";
        const auto standard = std::max(0, profile.Get(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS));
        most = static_cast<std::size_t>(arguments.Number("--count", standard));
    }

    void Answer(TextView line) {
        auto forms = Fields(line);
        const auto previous = forms.front();
        forms.erase(forms.begin());
        if (forms.empty())
            forms.emplace_back();
        if (arguments.Has("--forms"))
            predictor.PredictForms(dictionary, profile, previous, forms);
        else
            predictor.Predict(dictionary, profile, previous, forms.front());
        predictor.BestWords(most, best);
        Show();
    }

  private:
    void Show() const {
        int rank = 0;
        for (const auto& [word, score] : best) {
            std::cout << ++rank << '\t';
            if (arguments.Has("--scores"))
                std::cout << Exactly(score) << '\t';
            std::cout << arguments.ToTerminal(word) << '\n';
        }
        std::cout << std::endl;
    }

    const Arguments& arguments;
    CUserProfileProperties profile;
    CDictionary dictionary;
    CWordPredictor predictor;
    CDictionaryWordScoreSet best;
    std::size_t most = 0;
};

int Predict(const Arguments& arguments) {
    Session session(arguments);
    for (std::string line; std::getline(std::cin, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        session.Answer(arguments.FromTerminal(line));
    }
    return 0;
}

} // namespace

const Command kPredictCommand = {
    "predict", "answers which words would be predicted",
    "Reads queries from the standard input, one a line: the previous word, a tab and the beginning of the\n"
    "word (with --forms: its forms, tab-separated). Prints rank, score and word of each prediction, best\n"
    "first, separated by tabs, and an empty line after each query. Nothing is filtered or learned.",
    kOptions, Predict};

} // namespace ondrilo
