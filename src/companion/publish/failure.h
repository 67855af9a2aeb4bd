// Why something can't be published, in words for whoever asked for it.
#pragma once

#include <stdexcept>
#include <string>

namespace companion {

/// Its text is printed as it stands; one without a text was told already.
struct PublishFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace companion
