// What stands for the placeholders of the shares where it is compiled alone.
#pragma once

#define AROUND_BLOCK float containerH = 300;
#define POZHIL_SPACING 8.0f
#define POZHIL_TOTAL 3.0f
#define POZHIL_FIXED_SUM fixedHeightSum
#define POZHIL_FIXED_SIZES fixedHeightSum += 24.0f + spacing;
#define POZHIL_REMAINING remainingH
#define POZHIL_CONTAINER containerH
#define POZHIL_UNIT unitFlexH
