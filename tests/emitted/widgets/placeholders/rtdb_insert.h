// What stands for the placeholders of this call where it is compiled alone.
#pragma once

#define POZHIL_PATH std::string("அ/ஆ")
#define POZHIL_PAIRS json_data += "\"இ\": 5";
