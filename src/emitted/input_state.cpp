std::map<std::string, std::string> g_inputValues;
std::map<std::string, int> g_inputCursorPos;
std::string g_focusedInput = "";
std::map<std::string, bool> g_inputSelected;
