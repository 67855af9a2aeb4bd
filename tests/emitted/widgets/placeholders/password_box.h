// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_WIDTH 320.0f
#define POZHIL_HEIGHT 60.0f
#define POZHIL_BACKGROUND 1.0f, 1.0f, 1.0f, 1.0f
#define POZHIL_BACKGROUND_TEXT "rgba(255,255,255,1.000000)"
#define POZHIL_NAME "input_7"
#define POZHIL_HINT "குறிப்பு"
#define POZHIL_TEXT_COLOUR "#000000"
