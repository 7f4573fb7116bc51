#pragma once

#include <string>

namespace velmora {

/// What befalls this process's calls on files. Here stand the C library's own functions once more,
/// in whose place the program's are taken, and the toolkit's and SQLite's calls come to them too.
struct FailingCalls {
    std::string folder;  ///< below which calls are counted; none are while it is empty
    int at = 0;          ///< the number of the call that fails, the first is 1; 0: none
    bool stays = false;  ///< all that follow fail as well
    int count = 0;       ///< the calls until now
};
extern FailingCalls failingCalls;

}  // namespace velmora
