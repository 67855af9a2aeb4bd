// What stands for the placeholders of this call where it is compiled alone.
#pragma once

#define POZHIL_PATH std::string("அ/ஆ")
#define POZHIL_BODY global_vars["பார்த்தது"] = global_vars["தரவு"];
