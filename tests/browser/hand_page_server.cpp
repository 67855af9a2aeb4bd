// hand_page_server HOME CACHE CODE PORT: builds a page whose tree is made by hand and whose text is
// the file CODE, with the compiler's own build, and serves it. HOME is the compiler's directory.
#include <cstdlib>
#include <iostream>
#include <string>

#include "driver/local_server.h"
#include "driver/paths.h"
#include "driver/web_build.h"
#include "web/tree.h"

int main(int count, char** arguments) {
    if (count != 5) return 2;
    std::string code;
    if (!readFile(arguments[3], code)) return 2;
    const Program tree = program(application(
        head(properties(entry("இணைய_தலைப்பு", text("கைப்பக்கம் & <தலைப்பு>")),
                        entry("சின்னம்", text("icon.svg")), entry("பின்னணி", color("#fff3e0", true)))),
        widget("படம்", properties(entry("பாதை", text("படம்.png"))))));
    if (!buildWebApplication(tree, code, {arguments[1], arguments[2]})) return 1;
    std::cout << "ready" << std::endl;
    startLocalServer(std::atoi(arguments[4]));
    return 1;
}
