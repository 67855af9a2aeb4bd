// The packages of the module library and what each promises to define.
#pragma once

#include <string>
#include <vector>

#include "syntax/definitions.h"
#include "syntax/node.h"

struct Package {
    std::string path;                     ///< As a program imports it from the root.
    std::string prefix;                   ///< All its names begin so.
    std::vector<std::string> signatures;  ///< In source order: name(parameter, மாற்று parameter).
};

const std::vector<Package>& packages();

/// The package's tree, with nothing imported.
Program parsePackage(const Package& package);

/// name(parameter, மாற்று parameter)
std::string signatureOf(const FunctionDefinitionStatement& function);

/// The top-level functions, in order.
std::vector<const FunctionDefinitionStatement*> functionsOf(const Program& program);
