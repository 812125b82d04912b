#include "platform/qt/SpeechDispatcher.h"

#include "platform/qt/SsipConnection.h"

#include <QProcess>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace ondrilo {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

constexpr auto kFresh = 5s;         ///< a text that waited longer is not said any more
constexpr auto kFirstPause = 100ms; ///< before a second try to connect; it doubles from try to try
constexpr int kTries = 7;           ///< until the service is left alone
constexpr auto kRest = 3s;          ///< after that, however much there is to say
static_assert(kRest < kFresh, "what is said in the rest would be lost");
constexpr auto kListPatience = 10s; ///< until a module tells its voices
/// After a text was passed on, before the next one cuts it off. A module that is about to start does not hear
/// that it should stop, says all of the old text and holds up the service meanwhile.
constexpr auto kSettling = 25ms;
constexpr auto kSilentModule = "dummy"; ///< it tells in a recording that nothing works

struct Wish {
    Text text; ///< empty: silence
    Text voice;
    SpeechManner manner;
    SteadyClock::time_point since = SteadyClock::now();

    [[nodiscard]] bool IsFresh() const { return SteadyClock::now() - since < kFresh; }
};

/// A number that the service keeps for us.
struct Setting {
    const char* name;
    std::optional<int> SpeechManner::*wished;
    int standard; ///< what the service has by itself
    int now;
};

bool IsBlank(TextView text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) <= ' ' || c == '\xA0'; });
}

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

SpeechAddress SpeechAddress::FromEnvironment() {
    constexpr std::string_view kUnixSocket = "unix_socket:";
    if (const auto given = Variable("SPEECHD_ADDRESS"); !given.empty())
        return {given.starts_with(kUnixSocket) ? given.substr(kUnixSocket.size()) : "", false};
    auto folder = Variable("XDG_RUNTIME_DIR");
    if (folder.empty())
        folder = Variable("XDG_CACHE_HOME");
    if (folder.empty())
        folder = Variable("HOME") + "/.cache";
    return {folder + "/speech-dispatcher/speechd.sock", true};
}

/// What is said between the program and the service, in the order of their talk: who we are, which voices
/// there are, and then one text after the other.
class SpeechDispatcher::Dialogue {
  public:
    explicit Dialogue(SpeechAddress address);
    [[nodiscard]] std::vector<Text> Voices() const;
    void Say(Wish wish);
    void GetReady(TextView voice, const SpeechManner& manner);
    void Stop();

  private:
    enum class Stage { Resting, Connecting, Introducing, Ready };

    void Connect();
    void Reconnect(bool reached);
    void Introduce();
    void AskForModules();
    void AskForVoices();
    void AskForVoicesOf(const std::string& module);
    void BeReady();
    [[nodiscard]] bool IsProven() const;
    void Serve();
    void Select(const SpeechVoice& voice, const SpeechManner& manner);
    void Offer();
    void PassOn();
    void Set(const std::string& what, const std::string& value);

    SpeechAddress address;
    SsipConnection connection;
    QProcess starter;
    QTimer pause;    ///< until the next try
    QTimer settling; ///< see kSettling
    Stage stage = Stage::Resting;
    int tries = 0;
    bool mayStart = true; ///< the service; once in a row of tries
    SteadyClock::time_point rested;
    SteadyClock::time_point ready;

    SpeechVoices voices;
    bool knowsVoices = false;
    std::vector<std::string> modules; ///< that are still to tell their voices

    std::optional<Wish> newest;  ///< still to be offered
    std::optional<Wish> offered; ///< the service has not asked for its text yet
    bool isTalking = false;      ///< from the offer of a text until it is queued
    std::string module, voice;   ///< as the service has them now
    std::vector<Setting> settings{{"RATE", &SpeechManner::rate, 0, 0},
                                  {"PITCH", &SpeechManner::pitch, 0, 0},
                                  {"VOLUME", &SpeechManner::volume, 100, 100}};
};

SpeechDispatcher::Dialogue::Dialogue(SpeechAddress address)
    : address(std::move(address)), connection({[this] { Introduce(); },
                                               [this](bool reached) {
                                                   Reconnect(reached);
                                               }}) {
    pause.setSingleShot(true);
    settling.setSingleShot(true);
    QObject::connect(&pause, &QTimer::timeout, &pause, [this] { Connect(); });
    QObject::connect(&settling, &QTimer::timeout, &settling, [this] { Serve(); });
    starter.setStandardInputFile(QProcess::nullDevice());
    starter.setStandardOutputFile(QProcess::nullDevice());
    starter.setStandardErrorFile(QProcess::nullDevice());
    pause.start(0);
}

std::vector<Text> SpeechDispatcher::Dialogue::Voices() const {
    return knowsVoices ? voices.Descriptions() : std::vector<Text>{};
}

void SpeechDispatcher::Dialogue::Say(Wish wish) {
    newest = std::move(wish);
    if (stage == Stage::Ready && !knowsVoices && IsProven())
        return AskForModules(); // none was ready when it was asked; the text waits for the answer
    if (stage == Stage::Ready)
        return Serve();
    if (stage == Stage::Resting && !pause.isActive())
        pause.start(
            std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(rested + kRest - SteadyClock::now())));
}

void SpeechDispatcher::Dialogue::GetReady(TextView description, const SpeechManner& manner) {
    const auto* wished = voices.Find(description);
    if (stage != Stage::Ready || newest || isTalking || !wished)
        return;
    Select(*wished, manner);
    connection.Flush();
}

void SpeechDispatcher::Dialogue::Stop() {
    newest.reset();
    if (stage == Stage::Ready)
        Say({});
}

void SpeechDispatcher::Dialogue::Connect() {
    if (address.socket.empty())
        return;
    stage = Stage::Connecting;
    ++tries;
    connection.Open(address.socket);
}

void SpeechDispatcher::Dialogue::Reconnect(bool reached) {
    if (IsProven())
        tries = 0;
    stage = Stage::Resting;
    isTalking = false;
    settling.stop();
    if (const auto missed = std::exchange(offered, std::nullopt); missed && !newest)
        newest = missed;
    if (!reached && std::exchange(mayStart, false) && address.startable &&
        starter.state() == QProcess::NotRunning)
        starter.start("speech-dispatcher", {"--spawn"});
    mayStart |= reached;
    if (tries < kTries) {
        pause.start(kFirstPause * (1 << tries) / 2);
        return;
    }
    tries = 0;
    mayStart = true;
    rested = SteadyClock::now();
    if (newest && newest->IsFresh())
        pause.start(kRest);
}

/// Whether the connection has held for a while. One that breaks as soon as it stands counts as a try that
/// failed, or there would be no end to them.
bool SpeechDispatcher::Dialogue::IsProven() const {
    return stage == Stage::Ready && SteadyClock::now() - ready >= kRest;
}

void SpeechDispatcher::Dialogue::Introduce() {
    module.clear();
    voice.clear();
    Set("CLIENT_NAME", "user:ondrilo:main");
    // What the person says is not cut off by a screen reader, and cuts that one off.
    Set("PRIORITY", "message");
    Set("SSML_MODE", "off");
    Set("SPELLING", "off");
    Set("PUNCTUATION", "none");
    Set("CAP_LET_RECOGN", "none");
    for (auto& setting : settings)
        connection.Send(
            std::string("GET ").append(setting.name).append("\r\n"), [&setting](const SsipLine& line) {
                if (line.IsGood() && !line.last)
                    std::from_chars(line.text.data(), line.text.data() + line.text.size(), setting.standard);
                setting.now = setting.standard;
            });
    AskForModules();
}

void SpeechDispatcher::Dialogue::AskForModules() {
    stage = Stage::Introducing;
    modules.clear();
    if (!knowsVoices)
        voices = {};
    connection.Send("LIST OUTPUT_MODULES\r\n", [this](const SsipLine& line) {
        if (!line.last && line.text != kSilentModule)
            modules.emplace_back(line.text);
        if (line.last)
            AskForVoices();
    });
    connection.Flush();
}

void SpeechDispatcher::Dialogue::AskForVoices() {
    if (knowsVoices || modules.empty())
        return BeReady();
    for (const auto& each : modules)
        AskForVoicesOf(each);
    connection.Flush();
}

void SpeechDispatcher::Dialogue::AskForVoicesOf(const std::string& asked) {
    Set("OUTPUT_MODULE", asked);
    const bool isLast = asked == modules.back();
    connection.Send(
        "LIST SYNTHESIS_VOICES\r\n",
        [this, asked, isLast](const SsipLine& line) {
            if (!line.last)
                voices.Add(asked, line.text);
            if (line.last && isLast)
                BeReady();
        },
        kListPatience);
}

void SpeechDispatcher::Dialogue::BeReady() {
    knowsVoices = !voices.IsEmpty();
    stage = Stage::Ready;
    ready = SteadyClock::now();
    Serve();
}

void SpeechDispatcher::Dialogue::Serve() {
    if (stage != Stage::Ready || isTalking || settling.isActive() || !newest)
        return;
    const auto wish = *std::exchange(newest, std::nullopt);
    if (!wish.IsFresh())
        return;
    connection.Send("CANCEL SELF\r\n", [](const SsipLine&) {});
    const auto* wished = voices.Find(wish.voice);
    if (wished && !wish.text.empty()) {
        Select(*wished, wish.manner);
        offered = wish;
        Offer();
    }
    connection.Flush();
}

void SpeechDispatcher::Dialogue::Select(const SpeechVoice& wished, const SpeechManner& manner) {
    if (wished.module != module) {
        Set("OUTPUT_MODULE", wished.module);
        voice.clear(); // the service forgets it together with its module
    }
    if (wished.name != voice)
        Set("SYNTHESIS_VOICE", wished.name);
    module = wished.module;
    voice = wished.name;
    for (auto& setting : settings) {
        const int value = std::clamp((manner.*setting.wished).value_or(setting.standard), -100, 100);
        if (value != setting.now)
            Set(setting.name, std::to_string(value));
        setting.now = value;
    }
}

void SpeechDispatcher::Dialogue::Offer() {
    isTalking = true;
    connection.Send("SPEAK\r\n", [this](const SsipLine& line) {
        if (line.IsGood())
            return PassOn();
        offered.reset();
        isTalking = false;
        Serve();
    });
}

void SpeechDispatcher::Dialogue::PassOn() {
    const auto wish = *std::exchange(offered, std::nullopt);
    const bool isOvertaken = newest.has_value();
    connection.Send(isOvertaken ? std::string(kSsipNoText) : SsipText(wish.text),
                    [this, isOvertaken](const SsipLine& line) {
                        if (!line.last)
                            return;
                        isTalking = false;
                        if (isOvertaken)
                            Serve();
                        else
                            settling.start(kSettling);
                    });
    connection.Flush();
}

void SpeechDispatcher::Dialogue::Set(const std::string& what, const std::string& value) {
    connection.Send("SET SELF " + what + " " + value + "\r\n", [](const SsipLine&) {});
}

SpeechDispatcher::SpeechDispatcher(SpeechAddress address)
    : dialogue(std::make_unique<Dialogue>(std::move(address))) {
}

SpeechDispatcher::~SpeechDispatcher() = default;

std::vector<Text> SpeechDispatcher::Voices() const {
    return dialogue->Voices();
}

void SpeechDispatcher::Say(TextView text, TextView voice, const SpeechManner& manner) {
    if (IsBlank(text))
        dialogue->GetReady(voice, manner);
    else
        dialogue->Say({Text(text), Text(voice), manner});
}

void SpeechDispatcher::Stop() {
    dialogue->Stop();
}

} // namespace ondrilo
