// The method by which editors ask what could be written at a place.
#pragma once

#include "companion/language_server/session.h"

namespace companion::language_server {

/// textDocument/completion: a list that is to be asked for anew with each letter.
Json answerCompletion(Session& session, const Json& params);

/// The server's part of completion in what it tells of itself.
Json completionCapability();

/// What the client tells of its completion when it begins.
void readCompletionOptions(Session& session, const Json& params);

/// The user's settings, as `pozhil` or what stands in it. What isn't told stays.
void readCompletionSettings(Session& session, const Json& settings);

}  // namespace companion::language_server
