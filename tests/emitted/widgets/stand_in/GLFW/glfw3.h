// The window. A test says whether it opens and how large its buffer is.
#pragma once

struct GLFWwindow;
struct GLFWmonitor;

constexpr int GLFW_RELEASE = 0;
constexpr int GLFW_PRESS = 1;
constexpr int GLFW_MOUSE_BUTTON_LEFT = 0;

int glfwInit();
void glfwTerminate();
GLFWwindow* glfwCreateWindow(int w, int h, const char* title, GLFWmonitor*, GLFWwindow* share);
void glfwMakeContextCurrent(GLFWwindow*);
void glfwSetWindowSize(GLFWwindow*, int w, int h);
void glfwGetFramebufferSize(GLFWwindow*, int* w, int* h);
int glfwGetMouseButton(GLFWwindow*, int button);
