#pragma once

#include "app/SessionServices.h"
#include "tests/support/Journal.h"

#include <functional>
#include <map>
#include <utility>

namespace ondrilo {

/// Services that note what is asked of them.
struct RecordingServices {
    explicit RecordingServices(Journal& newJournal) : journal(newJournal) {}

    struct Noting {
        explicit Noting(Journal& journal) : journal(journal) {}
        Journal& journal;
    };
    struct Log : EventLog, Noting {
        using Noting::Noting;
        [[nodiscard]] bool IsOpen() const override { return open; }
        void Start(TextView) override {
            open = true;
            journal.Note("start log");
        }
        void End(const std::vector<Text>&, const std::vector<Text>&) override {
            open = false;
            journal.Note("end log");
        }
        void Write(const LogEvent& event) override { written.push_back(event); }
        bool open = false;
        std::vector<LogEvent> written;
    };
    struct Metrics : MetricsSink {
        void Count(Metric metric, int amount) override { counts[metric] += amount; }
        void Completed(const Completion&) override { ++completions; }
        std::map<Metric, int> counts;
        int completions = 0;
    };
    struct Speech : SpeechService, Noting {
        using Noting::Noting;
        bool SelectVoice(TextView name, const SpeechManner& newManner) override {
            voice = name;
            manner = newManner;
            journal.Note(Text("voice ").append(name));
            return true;
        }
        bool Speak(TextView text) override {
            spoken.emplace_back(text);
            if (onSpeak)
                onSpeak();
            return true;
        }
        void Release() override {
            if (!std::exchange(voice, {}).empty())
                journal.Note("release voice");
        }
        std::vector<Text> spoken;
        std::function<void()> onSpeak;
        Text voice;
        SpeechManner manner;
    };
    struct Character : Agent, Noting {
        using Noting::Noting;
        bool Start(TextView name, Point) override {
            journal.Note(Text("agent ").append(name));
            return loads;
        }
        void Play(TextView animation) override { played.emplace_back(animation); }
        void Stop() override { journal.Note("agent goes"); }
        bool loads = true;
        std::vector<Text> played;
    };
    struct Gps : GpsSource, Noting {
        using Noting::Noting;
        void Start(TextView port) override { journal.Note(Text("gps ").append(port)); }
        void Stop() override { journal.Note("stop gps"); }
        [[nodiscard]] bool IsActive() const override { return active; }
        bool active = false;
    };
    struct Bluetooth : BluetoothSource, Noting {
        using Noting::Noting;
        void Start() override { journal.Note("bluetooth"); }
        void Stop() override { journal.Note("stop bluetooth"); }
    };
    struct Context : ContextAdapter {
        Text GetStartProfile() override { return start; }
        std::optional<Text> DecideProfile() override {
            ++asked;
            return next;
        }
        Text start = "generico";
        std::optional<Text> next;
        int asked = 0;
    };
    struct Cooperation : CooperativeSession, Noting {
        using Noting::Noting;
        [[nodiscard]] bool IsUp() const override { return up; }
        [[nodiscard]] CooperativeRole Role() const override { return role; }
        void End() override {
            up = false;
            journal.Note("end cooperation");
        }
        bool up = false;
        CooperativeRole role = CooperativeRole::Client;
    };
    struct Record : UserRecord, Noting {
        using Noting::Noting;
        void Open() override { journal.Note("open record"); }
        void Close() override { journal.Note("close record"); }
        void MenuSelected(int command) override { journal.Note("menu " + std::to_string(command)); }
    };

    struct Pictograms : PictogramWriter {
        void Insert(const COnScreenKeyData& key, TextView standsFor, CWordProcessor&) override {
            inserted.emplace_back(key.label, standsFor);
        }
        std::vector<std::pair<Text, Text>> inserted; ///< pictograms and what they stand for
    };

    [[nodiscard]] SessionServices All() {
        return {log,       metrics, speech,      cueSpeech,  agent,     gps,
                bluetooth, context, cooperation, userRecord, pictograms};
    }

    Journal& journal;
    Log log{journal};
    Metrics metrics;
    Speech speech{journal};
    Speech cueSpeech{journal};
    Character agent{journal};
    Gps gps{journal};
    Bluetooth bluetooth{journal};
    Context context;
    Cooperation cooperation{journal};
    Record userRecord{journal};
    Pictograms pictograms;
};

} // namespace ondrilo
