// What stands for the placeholder of this call where it is compiled alone.
#pragma once

#define POZHIL_PATH std::string("அ/ஆ")
