// What stands for the placeholders of the range where it is compiled alone.
#pragma once

#define AROUND_BLOCK float colX = 10, colY = 20, colW = 200, colH = 300, contentH = 900;
#define POZHIL_OFFSET scrollY_7
#define POZHIL_LEFT colX
#define POZHIL_TOP colY
#define POZHIL_WIDTH colW
#define POZHIL_HEIGHT colH
#define POZHIL_LENGTH colH
#define POZHIL_CONTENT contentH
