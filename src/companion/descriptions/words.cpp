// The topics in their order, and all of their words in one.
#include "companion/descriptions/words.h"

namespace companion {

const std::vector<WordTopic>& wordTopics() {
    static const std::vector<WordTopic> topics = {
        {"அச்சிடுதலும் கேட்டலும்", talkingWords()},
        {"மதிப்புகளும் குறிகளும்", literalWords()},
        {"நிரலின் போக்கு", flowWords()},
        {"செயல்களும் கட்டமைப்புகளும்", definitionWords()},
        {"கணக்கும் ஒப்பீடும்", operatorWords()},
        {"மதிப்பை மாற்றுதல்", assignmentWords()},
        {"எண்கள்", numberWords()},
        {"உரைகள்", textWords()},
        {"பட்டியல்களும் அகராதிகளும்", listWords()},
        {"கோப்புகள்", fileWords()},
        {"நேரம்", timeWords()},
        {"வலைதளத்தின் செயல்கள்", applicationWords()},
    };
    return topics;
}

const std::vector<Description>& wordDescriptions() {
    static const std::vector<Description> all = [] {
        std::vector<Description> words;
        for (const WordTopic& topic : wordTopics()) {
            words.insert(words.end(), topic.words.begin(), topic.words.end());
        }
        return words;
    }();
    return all;
}

}  // namespace companion
