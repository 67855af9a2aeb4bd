// What stands for the placeholder of a handler where it is compiled alone.
#pragma once

#define POZHIL_CALLBACK std::any(std::function<std::any()>([] { return std::any(); }))
