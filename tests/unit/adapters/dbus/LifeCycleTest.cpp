#include "adapters/dbus/LifeCycle.h"

#include <gmock/gmock.h>

#include <string>

namespace tavi::test {

namespace {

using Event = LifeCycle::Event;

std::string letters(const std::vector<Event>& events) {
    std::string text;
    for (const Event event : events) {
        text += "ARBFT"[static_cast<std::size_t>(event)];
    }
    return text;
}

/// Runs a script of states, each some of the letters s(hown), f(ocused), l(ocked), or "quit", and joins what each
/// caused: A(ctive), R(esign), B(ackground), F(oreground), T(erminate).
std::string run(const std::vector<std::string>& script) {
    LifeCycle lifeCycle;
    std::string result;
    for (const std::string& step : script) {
        const auto has = [&step](char letter) { return step.find(letter) != std::string::npos; };
        const auto events = step == "quit" ? lifeCycle.terminate() : lifeCycle.update({has('s'), has('f'), has('l')});
        result += (result.empty() ? "" : " ") + (events.empty() ? "-" : letters(events));
    }
    return result;
}

TEST(LifeCycle, GoesThroughItsStatesInOrder) {
    struct Case {
        const char* name;
        std::vector<std::string> script;
        const char* expected;
    };
    const Case cases[] = {
        {"start, leave, return", {"", "s", "sf", "s", "sf"}, "- A - R A"},
        {"minimised with and without the focus", {"sf", "f", "sf", "s", "", "s", "sf"}, "A RB FA R B F A"},
        {"never given the focus, as without a window manager", {"s", "", "s", "sl", "s"}, "A RB FA RB FA"},
        {"locked and unlocked, over a minimised window too", {"sf", "sfl", "fl", "sfl", "sf"}, "A RB - - FA"},
        {"started behind a locked screen", {"l", "sl", "s"}, "- ARB FA"},
        {"focus before the first exposure", {"f", "sf"}, "- A"},
        {"unchanged", {"sf", "sf", "s", "s"}, "A - R -"},
        {"quits once, and nothing follows", {"sf", "quit", "quit", "", "sf"}, "A T - - -"},
        {"quits before it is shown", {"", "quit", "sf"}, "- T -"},
    };
    for (const Case& test : cases) {
        EXPECT_EQ(run(test.script), test.expected) << test.name;
    }
}

}  // namespace

}  // namespace tavi::test
