// What the driver prints: its texts are part of the interface, to the blank.
#pragma once

#include <string>

constexpr const char* kRed = "\033[1;31m";
constexpr const char* kGreen = "\033[1;32m";
constexpr const char* kYellow = "\033[1;33m";
constexpr const char* kBlue = "\033[1;34m";
constexpr const char* kCyan = "\033[1;36m";
constexpr const char* kWhite = "\033[1;37m";
constexpr const char* kReset = "\033[0m";

/// What a first build shows on standard error for an exception of each phase. The exception's own
/// text is dropped: a diagnostic never comes this way.
extern const char* const kScanFailure;
extern const char* const kParseFailure;
extern const char* const kGenerateFailure;

void printVersionScreen();

/// Opens the web road. Its last line stays open: the next print closes it.
void printWebOpening();

/// Tells that the web road's build begins.
void printWebBuildStart();

/// Tells where the first build is served.
void printWebSuccess(const std::string& address);

/// Tells that the first build failed.
void printWebFailure();

void printCompileBanner();

/// Prints the title of a build letter by letter. It goes by bytes, 20 milliseconds each: the
/// pause is part of the tool's manner.
void animateCompilation(std::string filename);

/// Tells on standard error that there is no `program`, and which package brings it.
void tellOfMissingTool(const std::string& program, const std::string& package);
