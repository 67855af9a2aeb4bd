// A character, and what every object is derived from.
// clang-format off

struct _PozhilChar { std::string val; };

struct _StructBase { std::map<std::string, std::any> properties; virtual ~_StructBase() = default; };

#include "error_codes.h"
#include "error_handler.h"
