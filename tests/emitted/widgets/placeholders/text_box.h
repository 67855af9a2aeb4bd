// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_WIDTH 320.0f
#define POZHIL_HEIGHT 50.0f
#define POZHIL_RADIUS 8.0f
#define POZHIL_BACKGROUND 1.0f, 1.0f, 1.0f, 1.0f
#define POZHIL_BORDER_COLOUR 0.5f, 0.5f, 0.5f, 1.0f
#define POZHIL_BORDER_WIDTH 1.0f
#define POZHIL_NAME "பெயர்"
#define POZHIL_OWN_NAME "text_7"
#define POZHIL_LEADING_WIDTH 24.0f
#define POZHIL_LEADING_HEIGHT 24.0f
#define POZHIL_LEADING nvgCircle(vg, leadX, leadY, 1);
#define POZHIL_HINT "குறிப்பு"
#define POZHIL_IS_MULTILINE false
#define POZHIL_TEXT_COLOUR "#333333"
