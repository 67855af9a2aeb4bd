// The random saying in a report's text.
#pragma once

#include <string>

/// The report with the saying replaced by one ellipsis, so that two reports can be compared.
std::string maskSaying(const std::string& report);

/// The saying that the report shows; "" if there is none.
std::string sayingOf(const std::string& report);
