// Counts the calls that have not come back yet. Too many of them end the program.

const int MAX_CALL_DEPTH = 150;

struct CallTracker {
    std::string file;

    CallTracker(std::string f) : file(std::move(f)) {
        g_call_depth++;
        if (g_call_depth > MAX_CALL_DEPTH) {
            g_call_depth = 0;
            pozhil_runtime_error("பொழில்-335", file, g_current_call_line);
        }
    }

    ~CallTracker() { g_call_depth--; }
};
