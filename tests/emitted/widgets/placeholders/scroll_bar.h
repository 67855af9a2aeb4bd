// What stands for the placeholders of the bar where it is compiled alone.
#pragma once

#define AROUND_BLOCK \
    float colX = 10, colY = 20, colW = 200, colH = 300, contentH = 900, maxScroll = 600;
#define POZHIL_LENGTH barH
#define POZHIL_START barY
#define POZHIL_PLACE colY + (30.0f / contentH) * colH
#define POZHIL_RECTANGLE colX + colW - 6, barY, 4, barH
#define POZHIL_VIEW colH
#define POZHIL_CONTENT contentH
