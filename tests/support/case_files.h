// Cases that are files: a source, and beside it what must come out.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct CaseFile {
    std::string name;      ///< Folder and stem, fit for a test's name: while_counts.
    std::string source;    ///< Path of the source.
    std::string expected;  ///< Path of the expectation.
};

/// All `.பொழில்` files below tests/`lane`, in order; each with the path of its expectation, which
/// ends in `extension`. A folder named `modules` holds sources that cases import, not cases.
std::vector<CaseFile> findCases(const std::string& lane, const std::string& extension);

/// Files below tests/`lane` that are no case, no expectation of one, and no C++.
std::vector<std::string> findStrayFiles(const std::string& lane, const std::string& extension);

/// Registers a test for each case; fails a test named `finds_cases` if there are none.
void registerCases(const std::string& lane, const std::string& extension,
                   const std::function<void(const CaseFile&)>& run);

/// The whole file; fails the running test and returns "" if it can't be read.
std::string readText(const std::string& path);

/// Compares with the expectation, side by side when they differ. With POZHIL_REWRITE=1 in the
/// environment the expectation is written anew instead.
void expectGolden(const CaseFile& file, const std::string& actual);
