#include "Support.h"
#include "platform/linux/CanberraSoundPlayer.h"
#include "platform/linux/FlockInstanceLock.h"
#include "platform/linux/PosixProgramStarter.h"
#include "platform/linux/WaveFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <sstream>
#include <sys/wait.h>

namespace ondrilo {
namespace {

using namespace std::chrono_literals;

/// A silent WAV file: 8 bits, mono, 1000 samples a second.
Text Silence(Milliseconds length) {
    const auto number = [](std::uint32_t value, int bytes) {
        Text text;
        for (int i = 0; i < bytes; ++i)
            text += static_cast<char>(value >> (8 * i));
        return text;
    };
    const auto samples = static_cast<std::uint32_t>(length.count());
    const Text format =
        number(1, 2) + number(1, 2) + number(1000, 4) + number(1000, 4) + number(1, 2) + number(8, 2);
    const Text chunks = "WAVEfmt " + number(16, 4) + format + "LIST" + number(3, 4) + "odd" + number(0, 1) +
                        "data" + number(samples, 4) + Text(samples, '\x80');
    return "RIFF" + number(static_cast<std::uint32_t>(chunks.size()), 4) + chunks;
}

bool IsFree(const std::filesystem::path& file) {
    FlockInstanceLock lock;
    return lock.Acquire(file);
}

TEST(InstanceLock, OneHoldsItUntilItsEnd) {
    const TemporaryFolder folder;
    const auto file = folder.Path() / "runtime" / "lock";
    {
        FlockInstanceLock holder;
        EXPECT_TRUE(holder.Acquire(file));
        EXPECT_FALSE(IsFree(file));
    }
    EXPECT_TRUE(IsFree(file));
    EXPECT_TRUE(IsFree("/proc/no/such/place/lock")) << "where no lock can be, nobody is kept out";
}

TEST(Programs, OneIsStartedWithoutTheLockAndLeavesNoZombie) {
    const TemporaryFolder folder;
    const auto program = folder.Write("acção.exe", "#!/bin/sh\nsleep 30 &\necho $# $! >\"$0.out\"\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const auto file = folder.Path() / "lock";
    {
        FlockInstanceLock lock;
        EXPECT_TRUE(lock.Acquire(file));
        PosixProgramStarter starter;
        starter.Start(FromUtf8(program.string()));
        starter.Start("/no/such/program.exe");
        ASSERT_TRUE(Eventually([&] { return folder.Read("acção.exe.out").ends_with('\n'); }));
    }
    int arguments = -1;
    pid_t sleeper = 0;
    std::istringstream(folder.Read("acção.exe.out")) >> arguments >> sleeper;
    EXPECT_EQ(arguments, 0);
    EXPECT_TRUE(Eventually([&] { return IsFree(file); })) << "the program's child still runs";
    EXPECT_EQ(kill(sleeper, SIGTERM), 0) << "it does not";
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(Programs, AScriptRunsInItsOwnShellAndWithoutOneInThatOfTheSystem) {
    using std::filesystem::perms;
    const TemporaryFolder folder;
    PosixProgramStarter starter;
    const auto start = [&](const char* name, const Text& firstLine, perms permissions) {
        const auto script = folder.Write(name, firstLine + "echo $#${BASH_VERSION:+bash} >\"$0.out\"\n");
        std::filesystem::permissions(script, permissions);
        starter.Start(FromUtf8(script.string()));
    };
    start("com linha.sh", "#!/bin/bash\n", perms::owner_all);
    start("sem linha.sh", "", perms::owner_all);
    start("sem permissão.sh", "#!/bin/sh\n", perms::owner_read);
    EXPECT_TRUE(Eventually([&] { return folder.Read("com linha.sh.out") == "0bash\n"; }));
    EXPECT_TRUE(Eventually([&] { return folder.Read("sem linha.sh.out") == "0\n"; }));
    EXPECT_TRUE(Eventually([&] { return folder.Read("sem permissão.sh.out") == "0\n"; }));
}

TEST(Programs, AnApplicationIsFoundByItsNameThePersonsOwnFirst) {
    const TemporaryFolder folder;
    const auto result = folder.Path() / "resultado";
    const auto install = [&](const std::string& place, const std::string& name) {
        folder.Write(place + "/applications/" + name,
                     "[Desktop Entry]\nType=Application\nName=Prova\nExec=sh -c \"echo " + place +
                         " $(readlink /proc/$$/fd/2) >>" + result.string() + "\"\n");
    };
    install("pessoa", "Cá.desktop");
    install("sistema", "Cá.desktop");
    install("sistema", "Lá.Desktop");
    setenv("XDG_DATA_HOME", (folder.Path() / "pessoa").c_str(), 1);
    setenv("XDG_DATA_DIRS", ("relativa:" + (folder.Path() / "sistema").string()).c_str(), 1);
    PosixProgramStarter starter;
    starter.Start("Nenhuma.desktop");
    starter.Start("Cá.desktop"_w);
    EXPECT_TRUE(Eventually([&] { return folder.Read("resultado") == "pessoa /dev/null\n"; }));
    starter.Start("Lá.Desktop"_w);
    EXPECT_TRUE(Eventually([&] { return folder.Read("resultado").ends_with("sistema /dev/null\n"); }));
    unsetenv("XDG_DATA_HOME");
    unsetenv("XDG_DATA_DIRS");
}

TEST(Sounds, ALengthIsReadPastOtherChunksAndFromNothingElse) {
    const TemporaryFolder folder;
    EXPECT_EQ(LengthOfWave(folder.Write("good.wav", Silence(250ms))), 250ms);
    EXPECT_EQ(LengthOfWave(folder.Write("cut.wav", Silence(250ms).substr(0, 40))), std::nullopt);
    EXPECT_EQ(LengthOfWave(folder.Write("text.wav", "no sound")), std::nullopt);
    EXPECT_EQ(LengthOfWave(folder.Path() / "missing.wav"), std::nullopt);
}

TEST(Sounds, WithoutASoundServerNobodyWaits) {
    const TemporaryFolder folder;
    const auto sound = folder.Write("sound.wav", Silence(100ms));
    int bells = 0;
    const auto start = std::chrono::steady_clock::now();
    const auto elapsed = [start] {
        return std::chrono::steady_clock::now() - start;
    };
    {
        CanberraSoundPlayer player([&bells] { ++bells; });
        for (int i = 0; i < 100; ++i)
            player.Play(sound);
        player.Play({});
        player.Beep();
        EXPECT_LT(elapsed(), 50ms) << "key sounds never wait";
        player.PlayToEnd(folder.Path() / "missing.wav");
        EXPECT_LT(elapsed(), 100ms);
        player.PlayToEnd(sound);
    }
    EXPECT_LT(elapsed(), 3500ms);
    EXPECT_EQ(bells, 1);
}

} // namespace
} // namespace ondrilo
