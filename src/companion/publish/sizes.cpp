#include "companion/publish/sizes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "companion/display_width.h"
#include "driver/paths.h"
#include "driver/processes.h"

namespace companion {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kKilobyte = 1000;
constexpr std::uintmax_t kMegabyte = 1000 * kKilobyte;
constexpr int kGap = 3;  // blanks between columns

/// `bytes` in `unit`, rounded to a tenth.
std::string tenths(std::uintmax_t bytes, std::uintmax_t unit) {
    const std::uintmax_t count = (bytes * 10 + unit / 2) / unit;
    return std::to_string(count / 10) + "." + std::to_string(count % 10);
}

/// What gzip makes of the file, as hosts do.
std::optional<std::uintmax_t> gzipSize(const fs::path& file) {
    if (!isInstalled("gzip")) return std::nullopt;
    const std::string command = "gzip -9 -c " + inQuotes(file.u8string()) + " | wc -c";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    unsigned long long bytes = 0;
    if (!pipe || fscanf(pipe.get(), "%llu", &bytes) != 1) return std::nullopt;
    return bytes;
}

FileSize sumOf(const std::vector<FileSize>& sizes) {
    FileSize sum{"மொத்தம்", 0, 0};
    for (const FileSize& size : sizes) {
        sum.bytes += size.bytes;
        if (!size.gzipBytes) sum.gzipBytes.reset();
        if (sum.gzipBytes) *sum.gzipBytes += *size.gzipBytes;
    }
    return sum;
}

std::string padded(const std::string& text, int width) {
    return text +
           std::string(static_cast<std::size_t>(std::max(0, width - displayWidth(text))), ' ');
}

}  // namespace

std::string sizeText(std::uintmax_t bytes) {
    if (bytes < kKilobyte) return std::to_string(bytes) + " பைட்";
    if (bytes < kMegabyte) return tenths(bytes, kKilobyte) + " கிலோபைட்";
    return tenths(bytes, kMegabyte) + " மெகாபைட்";
}

std::vector<FileSize> measureFiles(const std::string& folder,
                                   const std::vector<std::string>& names) {
    std::vector<FileSize> sizes;
    for (const std::string& name : names) {
        const fs::path file = fs::u8path(folder) / fs::u8path(name);
        sizes.push_back({name, fs::file_size(file), gzipSize(file)});
    }
    return sizes;
}

void printSizes(std::ostream& out, const std::vector<FileSize>& sizes) {
    std::vector<FileSize> rows = sizes;
    if (sizes.size() > 1) rows.push_back(sumOf(sizes));
    int nameWidth = 0;
    int sizeWidth = 0;
    for (const FileSize& row : rows) {
        nameWidth = std::max(nameWidth, displayWidth(row.name) + kGap);
        sizeWidth = std::max(sizeWidth, displayWidth(sizeText(row.bytes)) + kGap);
    }
    for (const FileSize& row : rows) {
        out << "   " << padded(row.name, nameWidth);
        if (row.gzipBytes) {
            out << padded(sizeText(row.bytes), sizeWidth) << "சுருக்கினால் "
                << sizeText(*row.gzipBytes);
        } else {
            out << sizeText(row.bytes);
        }
        out << "\n";
    }
}

}  // namespace companion
