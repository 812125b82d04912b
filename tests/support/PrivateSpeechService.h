#pragma once

#include "tests/support/TemporaryFolder.h"

#include <QProcess>

#include <csignal>
#include <filesystem>
#include <string>

namespace ondrilo {

/// The real speech service, for one test only: it speaks into files. Each text becomes a line
/// "voice|rate|pitch|volume|text" when it begins and "end|text" when it was said to its end.
class PrivateSpeechService {
  public:
    /// With `manyVoices` it also offers all voices of espeak-ng, thousands of rows.
    explicit PrivateSpeechService(bool manyVoices = false) {
        folder.Write("record", "#!/bin/sh\n"
                               "printf '%s|%s|%s|%s|%s\\n' \"$@\" >>" +
                                   Path("said") + "\nespeak-ng -v \"$1\" -w " + Path("said.wav") +
                                   " -- \"$5\"\nsleep 0.7\n"
                                   "printf 'end|%s\\n' \"$5\" >>" +
                                   Path("said") + "\n");
        folder.Write("conf/modules/recorder.conf",
                     "GenericExecuteSynth \"sh " + Path("record") +
                         " \\'$VOICE\\' $RATE $PITCH $VOLUME \\'$DATA\\'\"\n"
                         "GenericMaxChunkLength 100000\n"
                         "GenericDelimiters \"\\n\"\n"
                         "GenericLanguage \"pt\" \"pt\" \"utf-8\"\n"
                         "AddVoice \"pt\" \"MALE1\" \"Portuguese (Portugal)\"\n"
                         "AddVoice \"pt\" \"MALE2\" \"Portuguese (Portugal)+Alex\"\n"
                         "AddVoice \"en\" \"MALE1\" \"English (Great Britain)\"\n" +
                         Numbers("Rate") + Numbers("Pitch") + Numbers("Volume"));
        folder.Write("conf/modules/espeak-ng.conf", "");
        // No sound is played; this way of playing just starts without a sound server.
        folder.Write("conf/speechd.conf",
                     std::string("AudioOutputMethod \"libao\"\n"
                                 "SymbolsPreproc \"none\"\n"
                                 "DefaultLanguage \"pt\"\n"
                                 "DefaultRate 10\n"
                                 "DefaultVolume 90\n"
                                 "DefaultModule recorder\n"
                                 "AddModule \"recorder\" \"sd_generic\" \"recorder.conf\"\n") +
                         (manyVoices ? "AddModule \"espeak-ng\" \"sd_espeak-ng\" "
                                       "\"espeak-ng.conf\"\n"
                                     : ""));
        daemon.setProgram("speech-dispatcher");
        daemon.setArguments({"-s", "-c", "unix_socket", "-t", "0", "-C", QPath("conf"), "-S", QPath("socket"),
                             "-P", QPath("pid"), "-L", QPath("log")});
        daemon.setStandardOutputFile(QProcess::nullDevice());
        daemon.setStandardErrorFile(QProcess::nullDevice());
    }
    ~PrivateSpeechService() { Kill(); }

    void Start() { daemon.start(); }
    /// As a crash: nobody is told.
    void Kill() {
        daemon.kill();
        daemon.waitForFinished();
        std::filesystem::remove(folder.Path() / "pid"); // otherwise the next one takes it for running
    }
    void Hang() const { ::kill(static_cast<pid_t>(daemon.processId()), SIGSTOP); }
    void GoOn() const { ::kill(static_cast<pid_t>(daemon.processId()), SIGCONT); }

    [[nodiscard]] std::string Socket() const { return Path("socket"); }
    /// All that was said, in UTF-8.
    [[nodiscard]] std::string Said() const { return folder.Read("said"); }
    [[nodiscard]] bool HasSaid(const std::string& line) const {
        return ("\n" + Said()).find("\n" + line + "\n") != std::string::npos;
    }
    [[nodiscard]] const TemporaryFolder& Folder() const { return folder; }
    /// What starts it, for a shell.
    [[nodiscard]] std::string Command() const {
        return "/usr/bin/speech-dispatcher " + daemon.arguments().join(' ').toStdString();
    }

  private:
    /// A number reaches the recorder as it is.
    static std::string Numbers(const std::string& name) {
        return "Generic" + name + "Multiply 100\nGeneric" + name + "ForceInteger 1\n";
    }
    [[nodiscard]] std::string Path(const char* name) const { return (folder.Path() / name).string(); }
    [[nodiscard]] QString QPath(const char* name) const { return QString::fromStdString(Path(name)); }

    TemporaryFolder folder;
    QProcess daemon;
};

} // namespace ondrilo
