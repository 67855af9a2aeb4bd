// What scripts/warm_web.sh has prepared for em++: the headers of every application, precompiled,
// and the objects of what they instantiate and of the text that every program carries. They are
// handed over by the environment: the command stays as it is, and without them a build only takes
// longer.
#pragma once

#include <string>

/// What the environment of em++ gets, "NAME=value". Empty if nothing is prepared in
/// `objectDirectory`, if the compiler, a header or one of the prepared files is no longer as it was
/// then, or if the user's own environment says how em++ is to work.
std::string warmedSetting(const std::string& objectDirectory);

/// Whether em++ has refused what is prepared: then it is handed over no more while the process
/// lives.
extern bool g_isWarmedWebRefused;
