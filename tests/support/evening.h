#pragma once

#include <QString>

namespace velmora {

// A home in which Velmora sends to the same people evening after evening under the same run name,
// whatever happens to it meanwhile.

/// Makes the home of `people` people, some of whose texts fail or are confirmed late.
void prepareEvenings(const QString& home, int people);

/// What a user does each evening: opens Velmora, checks who is left, sends under the same name, and
/// resumes every pause. Time flies, so that what happens to the program finds it at work and not
/// asleep. 0 when the run has ended.
[[nodiscard]] int runEvening(const QString& home, double day);

/// What is wrong with what the evenings left; empty when nothing is: nobody was texted twice,
/// everybody stands in the log once, and settings, log and history are whole.
[[nodiscard]] QString faultOfEvenings(const QString& home, int people);

}  // namespace velmora
