#include "support/saying.h"

namespace {

const std::string kOpening = "✨ \"";
const std::string kClosing = "\"\033[0m\n";

struct Range {
    std::size_t begin = std::string::npos;
    std::size_t length = 0;
    bool found() const { return begin != std::string::npos; }
};

/// A saying may hold quotes itself: it ends where the line does.
Range findSaying(const std::string& report) {
    const std::size_t opening = report.find(kOpening);
    if (opening == std::string::npos) return {};
    const std::size_t begin = opening + kOpening.size();
    const std::size_t end = report.find(kClosing, begin);
    if (end == std::string::npos) return {};
    return {begin, end - begin};
}

}  // namespace

std::string maskSaying(const std::string& report) {
    const Range saying = findSaying(report);
    if (!saying.found()) return report;
    return std::string(report).replace(saying.begin, saying.length, "…");
}

std::string sayingOf(const std::string& report) {
    const Range saying = findSaying(report);
    return saying.found() ? report.substr(saying.begin, saying.length) : "";
}
