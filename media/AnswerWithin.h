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

/// Asks something of the disk on a thread of its own, which is left behind when the answer has not come
/// in time; so the question may own nothing that can go away. Nothing without an answer. Any thread.
template <typename Answer>
std::optional<Answer> answerWithin(std::chrono::milliseconds patience, std::function<Answer()> question)
{
    struct State {
        std::mutex mutex; // guards the rest
        std::condition_variable answered;
        std::optional<Answer> answer;
    };
    const auto state = std::make_shared<State>();
    try {
        std::thread([state, question = std::move(question)] {
            guarded("answerWithin", [&] {
                Answer answer = question();
                const std::lock_guard lock(state->mutex);
                state->answer = std::move(answer);
                state->answered.notify_all();
            });
        }).detach();
    } catch (const std::system_error &) {
        return std::nullopt;
    }
    std::unique_lock lock(state->mutex);
    state->answered.wait_for(lock, patience, [&] { return state->answer.has_value(); });
    return std::exchange(state->answer, std::nullopt);
}

} // namespace vantrell
