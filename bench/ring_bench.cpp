// The engine's ring beside two that others use: how long a block takes from one thread to another that are pinned to
// processors of their own, and how long a message takes one way.

#include <jack/ringbuffer.h>
#include <pthread.h>
#include <sched.h>

#include <algorithm>
#include <atomic>
#include <boost/lockfree/spsc_queue.hpp>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"

namespace {

constexpr std::size_t kCapacity = std::size_t{1} << 18;
constexpr std::size_t kLargestBlock = std::size_t{1} << 16;
constexpr std::size_t kMessage = 64;
// Many rounds of a few milliseconds: most of them find both processors free even when the machine has other work now
// and then.
constexpr int kRounds = 201;
constexpr int kMessagesARound = 2'000;

// Each ring takes and gives whole blocks, or none.

class EngineRing {
public:
    EngineRing() { tavi::TPCircularBufferInit(&m_ring, static_cast<std::int32_t>(kCapacity)); }
    ~EngineRing() { tavi::TPCircularBufferCleanup(&m_ring); }
    EngineRing(const EngineRing&) = delete;
    EngineRing& operator=(const EngineRing&) = delete;

    bool write(const char* block, std::size_t size) {
        return tavi::TPCircularBufferProduceBytes(&m_ring, block, static_cast<std::int32_t>(size));
    }
    bool read(char* block, std::size_t size) {
        std::int32_t held = 0;
        const void* tail = tavi::TPCircularBufferTail(&m_ring, &held);
        if (held < static_cast<std::int32_t>(size)) {
            return false;
        }
        std::memcpy(block, tail, size);
        tavi::TPCircularBufferConsume(&m_ring, static_cast<std::int32_t>(size));
        return true;
    }

private:
    alignas(64) tavi::TPCircularBuffer m_ring;
};

class JackRing {
public:
    JackRing() : m_ring(jack_ringbuffer_create(kCapacity)) {}
    ~JackRing() { jack_ringbuffer_free(m_ring); }
    JackRing(const JackRing&) = delete;
    JackRing& operator=(const JackRing&) = delete;

    bool write(const char* block, std::size_t size) {
        return jack_ringbuffer_write_space(m_ring) >= size && jack_ringbuffer_write(m_ring, block, size) == size;
    }
    bool read(char* block, std::size_t size) {
        return jack_ringbuffer_read_space(m_ring) >= size && jack_ringbuffer_read(m_ring, block, size) == size;
    }

private:
    jack_ringbuffer_t* m_ring;
};

class BoostRing {
public:
    bool write(const char* block, std::size_t size) {
        return m_ring->write_available() >= size && m_ring->push(block, size) == size;
    }
    bool read(char* block, std::size_t size) {
        return m_ring->read_available() >= size && m_ring->pop(block, size) == size;
    }

private:
    using Queue = boost::lockfree::spsc_queue<char, boost::lockfree::capacity<kCapacity - 1>>;
    std::unique_ptr<Queue> m_ring = std::make_unique<Queue>();
};

void pin(int processor) {
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(processor, &set);
    if (pthread_setaffinity_np(pthread_self(), sizeof(set), &set) != 0) {
        std::fprintf(stderr, "warning: a thread cannot be pinned to processor %d\n", processor);
    }
}

/// Runs first on one processor and second on another at the same time; how long the slower takes, in nanoseconds.
template <typename First, typename Second>
double nanosecondsOf(First first, Second second) {
    std::atomic<int> ready = 0;
    const auto meet = [&ready] {
        ++ready;
        while (ready < 2) {
        }
    };
    std::thread other([&] {
        pin(1);
        meet();
        second();
    });
    pin(0);
    meet();
    const auto start = std::chrono::steady_clock::now();
    first();
    other.join();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

template <typename Ring>
double nanosecondsABlock(Ring& ring, std::size_t size) {
    const std::size_t blocks = size < 4096 ? 8192 : size < kLargestBlock ? 4096 : 512;
    static const std::vector<char> source(kLargestBlock, 'x');
    static std::vector<char> target(kLargestBlock);
    const double taken = nanosecondsOf(
        [&] {
            for (std::size_t i = 0; i < blocks;) {
                i += ring.write(source.data(), size) ? 1 : 0;
            }
        },
        [&] {
            for (std::size_t i = 0; i < blocks;) {
                i += ring.read(target.data(), size) ? 1 : 0;
            }
        });
    return taken / static_cast<double>(blocks);
}

template <typename Ring>
double nanosecondsOneWay(Ring& there, Ring& back) {
    const auto pass = [](Ring& from, Ring& to, bool begins) {
        char message[kMessage] = {};
        for (int i = 0; i < kMessagesARound; ++i) {
            if (begins || i > 0) {
                to.write(message, kMessage);
            }
            while (!from.read(message, kMessage)) {
            }
        }
        if (!begins) {
            to.write(message, kMessage);
        }
    };
    return nanosecondsOf([&] { pass(back, there, true); }, [&] { pass(there, back, false); }) / (2.0 * kMessagesARound);
}

}  // namespace

int main() {
    EngineRing engine[2];
    JackRing jack[2];
    BoostRing boost[2];
    std::map<std::string, std::vector<double>> figures;
    // Round by round, so that what else the machine does meets all of them alike. The first round warms up.
    for (int round = 0; round <= kRounds; ++round) {
        for (const std::size_t size : {std::size_t{512}, std::size_t{4096}, kLargestBlock}) {
            const std::string name = "block-" + std::to_string(size);
            figures[name].push_back(nanosecondsABlock(engine[0], size));
            figures[name + "-jack"].push_back(nanosecondsABlock(jack[0], size));
            figures[name + "-boost"].push_back(nanosecondsABlock(boost[0], size));
        }
        figures["one-way"].push_back(nanosecondsOneWay(engine[0], engine[1]));
        figures["one-way-jack"].push_back(nanosecondsOneWay(jack[0], jack[1]));
        figures["one-way-boost"].push_back(nanosecondsOneWay(boost[0], boost[1]));
        if (round == 0) {
            figures.clear();
        }
    }
    for (auto& [name, values] : figures) {
        const auto middle = values.begin() + kRounds / 2;
        std::nth_element(values.begin(), middle, values.end());
        std::printf("figure: %s %.2f ns\n", name.c_str(), *middle);
    }
    return 0;
}
