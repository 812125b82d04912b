#pragma once

#include "keyboards/COnScreenKeyData.h"
#include "logging/EventLog.h"
#include "logging/MetricsSink.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Geometry.h"
#include "platform/UserRecord.h"
#include "speech/SpeechService.h"
#include "targets/CWordProcessor.h"
#include "text/Text.h"

#include <memory>
#include <optional>
#include <vector>

/// The services around a session, as small interfaces. Each base class is at the same time the form that does
/// nothing, for installations and tests without that service.
namespace ondrilo {

/// The animated character beside the window.
class Agent {
  public:
    virtual ~Agent() = default;
    /// Loads and shows a character; false if that fails.
    virtual bool Start(TextView /*name*/, Point /*position*/) { return false; }
    virtual void Move(Point /*position*/, Milliseconds /*duration*/) {}
    virtual void Play(TextView /*animation*/) {}
    virtual void Stop() {}
};

class GpsSource {
  public:
    virtual ~GpsSource() = default;
    virtual void Start(TextView /*port*/) {}
    virtual void Stop() {}
    /// The ports that the receiver may be at.
    [[nodiscard]] virtual std::vector<Text> Ports() const {
        std::vector<Text> ports;
        for (int number = 1; number <= 20; ++number)
            ports.push_back("com" + std::to_string(number));
        return ports;
    }
    [[nodiscard]] virtual bool IsActive() const { return false; }
};

class BluetoothSource {
  public:
    virtual ~BluetoothSource() = default;
    /// Starts to look for the tags of all profiles.
    virtual void Start() {}
    /// Looks for them in the way of that name instead.
    virtual void StartMechanism(TextView /*name*/) {}
    virtual void Stop() {}
    [[nodiscard]] virtual std::vector<Text> Mechanisms() const { return {Text("Inquérito"_w)}; }
};

/// Chooses the active profile from time, place and tags.
class ContextAdapter {
  public:
    virtual ~ContextAdapter() = default;
    /// The profile of the present context; "generico" if none fits.
    virtual Text GetStartProfile() { return "generico"; }
    /// The profile to change to now; nothing keeps the active one.
    virtual std::optional<Text> DecideProfile() { return std::nullopt; }
    virtual void Reset() {}
};

enum class CooperativeRole { Client, Server };

/// Work with a partner at another machine.
class CooperativeSession {
  public:
    virtual ~CooperativeSession() = default;
    [[nodiscard]] virtual bool IsUp() const { return false; }
    [[nodiscard]] virtual CooperativeRole Role() const { return CooperativeRole::Client; }
    [[nodiscard]] virtual bool HasData() { return false; }
    /// Reads the partner's suggestions and shows them on the keys.
    virtual void ShowHints() {}
    virtual void End() {}
};

/// Makes the picture of a pictogram key and puts it into the editor.
class PictogramWriter {
  public:
    virtual ~PictogramWriter() = default;
    /// `standsFor` is the text that the picture stands for in the tagged forms.
    virtual void Insert(const COnScreenKeyData& /*key*/, TextView /*standsFor*/, CWordProcessor& /*editor*/) {
    }
};

struct SessionServices {
    EventLog& log;
    MetricsSink& metrics;
    SpeechService& speech;
    SpeechService& cueSpeech; ///< says what is being scanned
    Agent& agent;
    GpsSource& gps;
    BluetoothSource& bluetooth;
    ContextAdapter& context;
    CooperativeSession& cooperation;
    UserRecord& userRecord;
    PictogramWriter& pictograms;
};

/// Every service in the form that does nothing.
struct NullServices {
    EventLog log;
    MetricsSink metrics;
    SpeechService speech;
    SpeechService cueSpeech;
    Agent agent;
    GpsSource gps;
    BluetoothSource bluetooth;
    ContextAdapter context;
    CooperativeSession cooperation;
    UserRecord userRecord;
    PictogramWriter pictograms;

    [[nodiscard]] SessionServices All() {
        return {log,       metrics, speech,      cueSpeech,  agent,     gps,
                bluetooth, context, cooperation, userRecord, pictograms};
    }
};

} // namespace ondrilo
