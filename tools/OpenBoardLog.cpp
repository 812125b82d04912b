#include "tools/OpenBoardLog.h"

#include "text/CaseFolding.h"
#include "text/Splitter.h"
#include "tools/JsonWriter.h"
#include "tools/LogSelection.h"

#include <algorithm>
#include <array>

namespace ondrilo {
namespace {

constexpr TextView kOwn = "ext_ondrilo_";

/// Events of a kind of their own, with what they are about in the column TYPE.
constexpr std::array<TextView, 6> kOwnEvents{
    "SYSTEM_INFO",        "MENU_OPTION_SELECTION",          "WORD_PROCESSOR_CHANGE",
    "CONTEXT_ADAPTATION", "COOPERATIVE_COMMUNICATION_SEND", "NEW_WORD"};

Text WithBlanks(TextView text) {
    return Replace(text, "_", " ");
}

Text OwnAction(TextView name) {
    return Text(":").append(kOwn) + MakeLower(name);
}

struct Action {
    Text name;
    Text text;
    Text destination; ///< the board that opens
};

/// What `type` holds behind the first of the beginnings that it has.
std::optional<TextView> Behind(TextView type, std::initializer_list<TextView> beginnings) {
    for (const TextView beginning : beginnings)
        if (type.starts_with(beginning))
            return type.substr(beginning.size());
    return std::nullopt;
}

Text CharacterAction(TextView output) {
    if (output == " ")
        return ":space";
    if (output == "\\b")
        return ":backspace";
    if (output == "\\t")
        return OwnAction("tab");
    return output == "\\n" ? OwnAction("enter") : Text("+").append(output);
}

Action ActionOf(const LogRecord& record) {
    const TextView type = record.type;
    if (type == "CHAR")
        return {CharacterAction(record.output), {}, {}};
    if (const auto board = Behind(type, {"ON_SCREEN_KEYBOARD_LOAD_"}))
        return {":open_board", {}, Text(*board)};
    if (std::ranges::find(kOwnEvents, record.event) != kOwnEvents.end())
        return {OwnAction(record.event), WithBlanks(Behind(type, {"WORD_"}).value_or(type)), {}};
    if (const auto spoken =
            Behind(type, {"COMMAND_EXECUTION_SYNTHESIZE_ALL_", "COMMAND_EXECUTION_SYNTHESIZE_IMAGE_",
                          "COMMAND_EXECUTION_SYNTHESIZE_SENTENCE_", "COMMAND_EXECUTION_SYNTHESIZE_WORD_"}))
        return {":speak", WithBlanks(*spoken), {}};
    if (Behind(type, {"SYNTHESIZE_"})) {
        // With a key it is what is heard around a selection, and the key tells of it.
        const auto spoken =
            record.element.empty()
                ? Behind(type, {"SYNTHESIZE_WORD_", "SYNTHESIZE_SENTENCE_", "SYNTHESIZE_IMAGE_"})
                : std::nullopt;
        return {":speak", WithBlanks(spoken.value_or("")), {}};
    }
    if (Behind(type, {"SHOW_"}))
        return {OwnAction("show"), {}, {}};
    if (const auto word = Behind(type, {"ABBREVIATION_NOT_FOUND_"}))
        return {OwnAction("abbreviation_not_found"), WithBlanks(*word), {}};
    if (const auto selection = ReadLogSelection(type)) // by a key that is not on the screen
        return {OwnAction(selection->operation), WithBlanks(selection->details), {}};
    return {OwnAction(type), {}, {}};
}

/// What pressing the button did, beside writing its label.
std::optional<Action> ActionOf(const LogSelection& selection) {
    if (selection.operation == "ON_SCREEN_KEYBOARD_CALL")
        return Action{":open_board", {}, selection.details};
    if (selection.predicted)
        return Action{":prediction", WithBlanks(selection.details), {}};
    if (selection.operation != "COMMAND_EXECUTION")
        return std::nullopt;
    if (selection.details == "CLEAR_INTERNAL_WORD_PROCESSOR")
        return Action{":clear", {}, {}};
    return Action{selection.details.starts_with("SPEAK_") ? ":speak" : OwnAction(selection.details), {}, {}};
}

class Writer {
  public:
    void Event(const LogRecord& record) {
        if (!record.undecided.empty()) {
            Member("type", "note");
            Member("text", record.undecided);
            return;
        }
        const auto selection = ReadLogSelection(record.type);
        if (selection && !record.element.empty())
            Button(record, *selection);
        else if (record.event == "NEW_SENTENCE")
            Utterance(record.type);
        else
            WriteAction(ActionOf(record));
        Columns(record);
    }

    JsonWriter json;

  private:
    template <typename V>
    void Member(TextView name, const V& value) {
        json.Member(name, value);
    }
    void MemberIfAny(TextView name, const Text& value) {
        if (!value.empty())
            Member(name, value);
    }

    void Button(const LogRecord& record, const LogSelection& selection) {
        auto label = WithBlanks(selection.details);
        Text vocalization;
        if (const auto blank = label.find(' ');
            selection.operation == "ABBREVIATION_SELECTION" && blank != Text::npos) {
            vocalization = label.substr(blank + 1);
            label.resize(blank);
        }
        Member("type", "button");
        Member("label", label.empty() ? WithBlanks(selection.operation) : label);
        Member("spoken", selection.writes);
        MemberIfAny("vocalization", vocalization);
        Member("button_id", record.element);
        MemberIfAny("board_id", record.page);
        if (const auto action = ActionOf(selection)) {
            json.Name("actions");
            json.BeginArray();
            json.BeginObject();
            Members(*action);
            json.EndObject();
            json.EndArray();
        }
    }

    void Utterance(TextView type) {
        Member("type", "utterance");
        Member("text", WithBlanks(Behind(type, {"SENTENCE_"}).value_or(type)));
    }

    void WriteAction(const Action& action) {
        Member("type", "action");
        Members(action);
    }

    void Members(const Action& action) {
        Member("action", action.name);
        MemberIfAny("text", action.text);
        MemberIfAny("destination_board_id", action.destination);
    }

    /// All that the log says, so that nothing is lost.
    void Columns(const LogRecord& record) {
        const std::pair<TextView, const Text*> columns[] = {
            {"event", &record.event},     {"type", &record.type},     {"output", &record.output},
            {"element", &record.element}, {"center", &record.center}, {"page", &record.page},
            {"context", &record.context}};
        for (const auto& [name, value] : columns)
            MemberIfAny(Text(kOwn).append(name), *value);
    }
};

void WriteEnd(JsonWriter& json, const LogFile& log) {
    json.Name(Text(kOwn).append("metrics"));
    json.BeginObject();
    for (const auto& [name, value] : log.metrics)
        json.Member(name, value);
    json.EndObject();
    json.Name(Text(kOwn).append("final_texts"));
    json.BeginArray();
    for (const auto& text : log.finalTexts)
        json.Value(text);
    json.EndArray();
}

} // namespace

std::string LogAsOpenBoardLog(const LogFile& log, TextView session, TextView profile, LogDay firstDay) {
    const auto moments = MomentsOf(log.records, firstDay);
    Writer writer;
    auto& json = writer.json;
    json.BeginObject();
    json.Member("format", "open-board-log-0.1");
    json.Member("user_id", Text("ondrilo:").append(profile));
    json.Member("source", "ondrilo");
    json.Member("locale", "pt-PT");
    json.Member("anonymized", false);
    json.Name("sessions");
    json.BeginArray();
    json.BeginObject();
    json.Member("id", session);
    json.Member("type", "log");
    if (!moments.empty()) {
        json.Member("started", moments.front());
        json.Member("ended", moments.back());
    }
    json.Name("events");
    json.BeginArray();
    for (std::size_t i = 0; i < moments.size(); ++i) {
        json.BeginObject();
        json.Member("id", Text(session) + ":" + std::to_string(i));
        json.Member("timestamp", moments[i]);
        writer.Event(log.records[i]);
        json.EndObject();
    }
    json.EndArray();
    if (log.hasEnd)
        WriteEnd(json, log);
    json.EndObject();
    json.EndArray();
    json.EndObject();
    return json.Written() + "\n";
}

} // namespace ondrilo
