// What the emitted text asks of OpenGL.
#pragma once

using GLbitfield = unsigned;

constexpr GLbitfield GL_DEPTH_BUFFER_BIT = 0x0100;
constexpr GLbitfield GL_STENCIL_BUFFER_BIT = 0x0400;
constexpr GLbitfield GL_COLOR_BUFFER_BIT = 0x4000;

unsigned glewInit();
void glViewport(int x, int y, int w, int h);
void glClearColor(float r, float g, float b, float a);
void glClear(GLbitfield buffers);
