// The same text compiled for anything but the browser. The names are those of program.cpp, so they
// stand in a namespace of their own, and every header stands before it.
#include "emitted/placeholders.h"
#include "error_codes.h"
#include "error_handler.h"
#include "includes.cpp"

#define POZHIL_WINDOW_WIDTH 800
#define main startOfTheApplication

namespace without_browser {

static void init_globals() { std::cout << "init_globals\n"; }

#include "web_in_order.h"

}  // namespace without_browser

namespace application {
int startOutsideABrowser() { return without_browser::startOfTheApplication(); }
}  // namespace application
