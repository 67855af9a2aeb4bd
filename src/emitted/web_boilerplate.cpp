// --- Web Boilerplate ---
#ifdef __EMSCRIPTEN__
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <emscripten.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"

NVGcontext* vg = NULL;
GLFWwindow* window = NULL;
float g_currentClipX = -1.0f;
float g_currentClipY = -1.0f;
float g_currentClipW = -1.0f;
float g_currentClipH = -1.0f;
bool g_isHoveringH = false;
bool g_nextHoveringH = false;
bool g_mouseClicked = false;
#endif
