// What the generator fills in where the emitted files leave a name.
#pragma once

#define POZHIL_SOURCE_FILE "சோதனை.பொழில்"
#define POZHIL_INITIAL_PAGE "home"
