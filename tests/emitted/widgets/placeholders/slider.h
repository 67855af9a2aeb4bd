// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_MINIMUM 0.0f
#define POZHIL_MAXIMUM 100.0f
#define POZHIL_WIDTH float slW = 200.0f;
#define POZHIL_VALUE std::any(25LL)
