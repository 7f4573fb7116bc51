#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace velmora {

// A home in which Velmora sends to the same people evening after evening under the same run name,
// whatever happens to it meanwhile.

/// Makes the home of `people` people, some of whose texts fail or are confirmed late.
void prepareEvenings(const QString& home, int people);

/// What a user does each evening: opens Velmora, checks who is left, sends under the same name, and
/// resumes every pause. Time flies, so that what happens to the program finds it at work and not
/// asleep. Calls `atEachText` before Messages is handed a text. 0 when the run has ended.
[[nodiscard]] int runEvening(
    const QString& home, double day, const std::function<void()>& atEachText = [] {});

/// An evening in a process of its own: this program with the arguments "evening", `home`, `day` and
/// `more`, killed after so many milliseconds (-1: never). What it wrote on its standard output;
/// nothing when it did not come to a good end.
[[nodiscard]] std::optional<QByteArray> playEvening(const QString& home, int day, int milliseconds,
                                                    const QStringList& more = {});

/// What is wrong with what the evenings left; empty when nothing is: nobody was texted twice,
/// everybody stands in the log once, and settings, log and history are whole.
[[nodiscard]] QString faultOfEvenings(const QString& home, int people);

}  // namespace velmora
