#include "adapters/dbus/LifeCycle.h"

#include <gmock/gmock.h>

#include <sstream>

namespace tavi::test {

namespace {

/// Runs a script of states, each some of the letters s(hown), f(ocused), l(ocked), a(sleep), or "-" for none, or
/// "quit", and joins what each caused: A(ctive), R(esign), B(ackground), F(oreground), T(erminate), or "-" for nothing.
std::string run(const char* script) {
    LifeCycle lifeCycle;
    std::string result;
    std::istringstream steps(script);
    for (std::string step; steps >> step;) {
        const auto has = [&step](char letter) { return step.find(letter) != std::string::npos; };
        const auto events =
            step == "quit" ? lifeCycle.terminate() : lifeCycle.update({has('s'), has('f'), has('l'), has('a')});
        result += result.empty() ? "" : " ";
        for (const LifeCycle::Event event : events) {
            result += "ARBFT"[static_cast<std::size_t>(event)];
        }
        result += events.empty() ? "-" : "";
    }
    return result;
}

TEST(LifeCycle, GoesThroughItsStatesInOrder) {
    const char* const cases[][3] = {
        {"start, leave, return", "- s sf s sf", "- A - R A"},
        {"minimised with and without the focus", "sf f sf s - s sf", "A RB FA R B F A"},
        {"never given the focus, as without a window manager", "s - s sl s", "A RB FA RB FA"},
        {"locked and unlocked, over a minimised window too", "sf sfl fl sfl sf", "A RB - - FA"},
        {"started behind a locked screen", "l sl s", "- ARB FA"},
        {"asleep, awake behind a locked screen, and unlocked", "sf sfa sfla sfl sf", "A RB - - FA"},
        {"focus before the first exposure", "f sf", "- A"},
        {"unchanged", "sf sf s s", "A - R -"},
        {"quits once, and nothing follows", "sf quit quit - sf", "A T - - -"},
        {"quits before it is shown", "- quit sf", "- T -"},
    };
    for (const auto& [name, script, expected] : cases) {
        EXPECT_EQ(run(script), expected) << name;
    }
}

}  // namespace

}  // namespace tavi::test
