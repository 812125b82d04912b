#include "platform/linux/CanberraSoundPlayer.h"

#include "platform/linux/WaveFile.h"

#include <canberra.h>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace ondrilo {
namespace {

constexpr std::uint32_t kSound = 1;
/// How long the sound server may take beyond the length of a sound, from asleep to silent again.
constexpr Milliseconds kServerMargin{2000};
constexpr Milliseconds kFarewell{500};

} // namespace

/// The thread that speaks to the sound server, and its letter box with room for one request: of requests that
/// come faster than the server answers, only the last is worth hearing. The thread keeps its own share of the
/// worker, so that a server that never answers holds up nobody at the end.
class CanberraSoundPlayer::Worker : public std::enable_shared_from_this<Worker> {
  public:
    void Run() {
        std::thread([self = shared_from_this()] { self->Serve(); }).detach();
    }
    std::uint64_t Request(std::filesystem::path file) {
        const std::lock_guard lock(mutex);
        request = std::move(file);
        changed.notify_all();
        return ++lastRequest;
    }
    bool WaitForEnd(std::uint64_t number, Milliseconds limit) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, limit, [&] { return lastFinished >= number; });
    }
    void Stop() {
        std::unique_lock lock(mutex);
        isStopping = true;
        changed.notify_all();
        changed.wait_for(lock, kFarewell, [this] { return hasLeft; });
    }

  private:
    struct Playing {
        std::shared_ptr<Worker> worker;
        std::uint64_t number;
    };

    void Serve() {
        ca_context* context = nullptr;
        ca_context_create(&context);
        while (const auto file = NextRequest())
            Start(context, *file);
        if (context)
            ca_context_destroy(context);
        const std::lock_guard lock(mutex);
        hasLeft = true;
        changed.notify_all();
    }

    std::optional<std::filesystem::path> NextRequest() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return request || isStopping; });
        if (isStopping)
            return std::nullopt;
        taken = lastRequest;
        return std::exchange(request, std::nullopt);
    }

    void Start(ca_context* context, const std::filesystem::path& file) {
        if (context)
            ca_context_cancel(context, kSound);
        if (!context || file.empty() || !Play(context, file))
            Finish(taken);
    }

    bool Play(ca_context* context, const std::filesystem::path& file) {
        ca_proplist* properties = nullptr;
        if (ca_proplist_create(&properties) != CA_SUCCESS)
            return false;
        ca_proplist_sets(properties, CA_PROP_APPLICATION_NAME, "Ondrilo");
        ca_proplist_sets(properties, CA_PROP_MEDIA_FILENAME, file.c_str());
        std::unique_ptr<Playing> playing(new Playing{shared_from_this(), taken});
        const int result = ca_context_play_full(context, kSound, properties, &Worker::Ended, playing.get());
        ca_proplist_destroy(properties);
        if (result != CA_SUCCESS)
            return false;
        static_cast<void>(playing.release()); // Ended has it now
        return true;
    }

    static void Ended(ca_context*, std::uint32_t, int, void* data) {
        const std::unique_ptr<Playing> playing(static_cast<Playing*>(data));
        playing->worker->Finish(playing->number);
    }

    void Finish(std::uint64_t number) {
        const std::lock_guard lock(mutex);
        lastFinished = std::max(lastFinished, number);
        changed.notify_all();
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::optional<std::filesystem::path> request;
    std::uint64_t lastRequest = 0;
    std::uint64_t lastFinished = 0;
    std::uint64_t taken = 0; // the thread's own
    bool isStopping = false;
    bool hasLeft = false;
};

CanberraSoundPlayer::CanberraSoundPlayer(std::function<void()> bell)
    : worker(std::make_shared<Worker>()), bell(std::move(bell)) {
    worker->Run();
}

CanberraSoundPlayer::~CanberraSoundPlayer() {
    worker->Stop();
}

void CanberraSoundPlayer::PlayToEnd(const std::filesystem::path& file) {
    const auto length = LengthOfWave(file);
    if (!length)
        return;
    const auto number = worker->Request(file);
    if (!worker->WaitForEnd(number, *length + kServerMargin))
        worker->Request({});
}

void CanberraSoundPlayer::Play(const std::filesystem::path& file) {
    worker->Request(file);
}

void CanberraSoundPlayer::Beep() {
    if (bell)
        bell();
}

} // namespace ondrilo
