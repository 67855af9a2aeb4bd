#include "companion/commands.h"

namespace companion {

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"சரிபார்", "check", "கோப்பு...", "நிரலைப் படித்து, பிழைகளையும் தீர்வுகளையும் சொல்லும்", runCheck},
        {"வடிவமை", "format", "[--check] கோப்பு...", "நிரலின் இடைவெளிகளையும் வரிகளையும் சீராக்கும்",
         runFormat},
        {"இயக்கு", "run", "[--quiet] கோப்பு",
         "நிரலைச் சரிபார்த்து, தொகுத்து இயக்கும்; --quiet: நிரலின் சொற்கள் மட்டும்", runRun},
        {"புதிது", "new", "[--web] பெயர்", "புதிய நிரலுக்கான கோப்புறையை உருவாக்கும்; --web: வலைதளம்",
         runNew},
        {"விளக்கு", "explain", "[சொல் அல்லது பிழை எண்]", "ஒரு சொல்லையோ பிழையையோ எடுத்துக்காட்டோடு விளக்கும்",
         runExplain},
        {"வெளியிடு", "publish", "கோப்பு கோப்புறை", "வலைதளத்தை எந்த வழங்கியிலும் இயங்கும் கோப்புறையாக எழுதும்",
         runPublish},
    };
    return all;
}

}  // namespace companion
