// --- Web Boilerplate ---
#ifdef __EMSCRIPTEN__
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <emscripten.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"
#endif
