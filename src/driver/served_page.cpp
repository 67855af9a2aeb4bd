#include "driver/served_page.h"

#include <mutex>
#include <utility>

namespace {

std::mutex g_pageGuard;

// Never destroyed: the server thread may read it while the process ends.
std::string& g_web_html = *new std::string;

}  // namespace

std::atomic<int> g_appVersion{1};

void storePage(std::string page) {
    const std::lock_guard<std::mutex> hold(g_pageGuard);
    g_web_html = std::move(page);
}

std::string loadPage() {
    const std::lock_guard<std::mutex> hold(g_pageGuard);
    return g_web_html;
}
