// The web road, from the generated text on.
#pragma once

/// Tells that this build has no web road yet. Returns the status to end with.
int refuseWebRoad();
