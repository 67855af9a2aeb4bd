// What stands for the placeholders of this widget where it is compiled alone.
#pragma once

#define POZHIL_LABEL std::string("அ")
#define POZHIL_VALUE std::string("அ")
#define POZHIL_GROUP_VALUE std::string("அ")
#define POZHIL_SELECTED_COLOUR int onR = 33, onG = 150, onB = 243;
#define POZHIL_UNSELECTED_COLOUR int offR = 120, offG = 120, offB = 120;
