#pragma once

#include "support/log/QVException.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace vantrell
{

/// As long as the main thread may wait for a disk: a disk that answers does so much sooner.
inline constexpr std::chrono::milliseconds mainThreadPatience{50};

/// Asks something of the disk on a thread of its own, which is left behind when the answer has not come
/// in time; so the question may own nothing that can go away. Nothing without an answer. An answer that comes
/// later is passed to `late` (may be empty), on that thread. Any thread.
template <typename Answer>
std::optional<Answer> answerWithin(std::chrono::milliseconds patience, std::function<Answer()> question,
                                   std::function<void(const Answer &)> late = {})
{
    struct State {
        std::mutex mutex; // guards the rest
        std::condition_variable answered;
        std::optional<Answer> answer;
        bool isLate = false;
    };
    const auto state = std::make_shared<State>();
    try {
        std::thread([state, question = std::move(question), late = std::move(late)] {
            guarded("answerWithin", [&] {
                const Answer answer = question();
                {
                    const std::lock_guard lock(state->mutex);
                    if (!state->isLate) {
                        state->answer = answer;
                        state->answered.notify_all();
                        return;
                    }
                }
                if (late)
                    late(answer);
            });
        }).detach();
    } catch (const std::system_error &) {
        return std::nullopt;
    }
    std::unique_lock lock(state->mutex);
    state->answered.wait_for(lock, patience, [&] { return state->answer.has_value(); });
    state->isLate = !state->answer;
    return std::exchange(state->answer, std::nullopt);
}

} // namespace vantrell
