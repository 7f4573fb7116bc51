#pragma once

class QCoreApplication;

namespace velmora {

/// From now on the signals that ask a program to end, SIGTERM, SIGINT and SIGHUP, end the event
/// loop of `application`, so that all that main made is taken down in order. No window is asked. A
/// signal that the program was started to ignore stays ignored. Called once.
void endAtSignals(QCoreApplication& application);

}  // namespace velmora
