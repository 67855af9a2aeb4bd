std::map<std::string, std::string> g_inputErrors;
std::map<std::string, bool> g_kaatchi_nilai;
std::set<std::string> g_alert_names;
bool g_block_background_clicks = false;
bool g_inside_overlay = false;
std::any fn_return_value;
std::vector<std::function<void()>> g_overlays;

void pozhil_runtime_error(std::string code, std::string file, int line);

int g_call_depth = 0;
int g_current_call_line = 0;  // 🔥 வரியின் எண்ணை ட்ராக் செய்ய
