// Tamil words whose spelling is known, found by their sound: of the document, of everyday talk, of
// the descriptions' own prose.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace companion::completion {

const std::vector<std::string_view>& everydayWords();

/// What `typed`, in Latin letters, may mean in Tamil, the likeliest first, at most `most`.
/// `documentWords` come ahead of others that are as near; `withKnownWords` takes the words that are
/// known by themselves.
std::vector<std::string> tamilFor(std::string_view typed,
                                  const std::vector<std::string>& documentWords,
                                  bool withKnownWords, std::size_t most);

}  // namespace companion::completion
