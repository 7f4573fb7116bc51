// first_pixels PROGRAM: launches it and prints when the first pixels of its window were on the
// display, in milliseconds, and its memory (PSS) three seconds later, in megabytes; then ends it.
//
// The first pixels are there when the display's picture of a window of its has more than one colour
// in the lines looked at, one in sixteen. A window that is mapped and not drawn yet, or only
// filled, has one colour alone, whatever program it belongs to. The display is asked once a
// millisecond, and no program is told that it is being watched. This one uses no toolkit, for a
// library that it shared with the program would make that one look lighter.

#include <spawn.h>
#include <sys/wait.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int linesApart = 16;
constexpr int smallestSide = 200;  // no helper's window
constexpr auto patience = 20s;

[[noreturn]] void fail(const char* sentence) {
    std::fputs(sentence, stderr);
    std::exit(1);
}

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

bool isDrawn(xcb_connection_t* display, xcb_window_t window) {
    const auto place =
        owned(xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
    if (!place || place->width < smallestSide || place->height < smallestSide)
        return false;
    std::vector<xcb_get_image_cookie_t> asked;
    for (int line = 0; line < place->height; line += linesApart)
        asked.push_back(xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0,
                                      static_cast<int16_t>(line), place->width, 1, ~0U));
    std::vector<uint32_t> colours;
    for (const xcb_get_image_cookie_t each : asked) {
        // None of a window that is not mapped.
        const auto line = owned(xcb_get_image_reply(display, each, nullptr));
        if (!line)
            continue;
        const auto* pixels = reinterpret_cast<const uint32_t*>(xcb_get_image_data(line.get()));
        std::unique_copy(pixels, pixels + place->width, std::back_inserter(colours));
    }
    return std::ranges::adjacent_find(colours, std::not_equal_to()) != colours.end();
}

bool showsPixels(xcb_connection_t* display) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const auto tree = owned(xcb_query_tree_reply(display, xcb_query_tree(display, root), nullptr));
    if (!tree)
        fail("The display does not answer.\n");
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    return std::any_of(windows, windows + xcb_query_tree_children_length(tree.get()),
                       [&](xcb_window_t window) { return isDrawn(display, window); });
}

double megabytes(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; file >> word;)
        if (double kilobytes = 0; word == "Pss:" && file >> kilobytes)
            return kilobytes / 1024;
    fail("The memory of the process cannot be read.\n");
}

}  // namespace

int main(int, char** argv) {
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    pid_t process = 0;
    const Clock::time_point start = Clock::now();
    if (posix_spawnp(&process, argv[1], nullptr, nullptr, argv + 1, environ) != 0)
        fail("The program cannot be launched.\n");
    while (!showsPixels(display)) {
        if (Clock::now() - start > patience)
            fail("The program shows nothing.\n");
        std::this_thread::sleep_for(1ms);
    }
    const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
    std::this_thread::sleep_for(3s);
    std::printf("%.1f %.1f\n", passed.count(), megabytes(process));
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    while (showsPixels(display))
        std::this_thread::sleep_for(1ms);
    xcb_disconnect(display);
    return 0;
}
