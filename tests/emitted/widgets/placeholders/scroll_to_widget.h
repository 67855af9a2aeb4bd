// What stands for the placeholders of the way to a widget where it is compiled alone.
#pragma once

#define AROUND_BLOCK float colY = 20, scrollY_7 = 30, maxScroll = 600;
#define POZHIL_TARGET targetY_id
#define POZHIL_DESIRED desiredY
#define POZHIL_AXIS y
#define POZHIL_ORIGIN colY
#define POZHIL_OFFSET scrollY_7
