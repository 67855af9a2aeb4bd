#include "companion/explain/contents.h"

#include "companion/descriptions/words.h"

namespace companion {

namespace {

/// The words of one row behind the other, each once.
template <typename Described>
Page topicPage(std::string_view title, const std::vector<Described>& described) {
    std::vector<std::string_view> words;
    std::string text;
    for (const Described& entry : described) {
        bool isThere = false;
        for (const std::string_view word : words) isThere |= word == entry.word;
        if (isThere) continue;
        words.push_back(entry.word);
        if (!text.empty()) text += "  ";
        text += entry.word;
    }
    Page page{std::string(title), std::to_string(words.size()), {}};
    page.addProse("", text);
    return page;
}

}  // namespace

void writeContents(std::ostream& out, const PageStyle& style) {
    const auto write = [&](const Page& page) {
        if (page.sections.empty()) return;
        writePage(out, page, style);
        out << "\n";
    };
    for (const WordTopic& topic : wordTopics()) write(topicPage(topic.title, topic.words));
    write(topicPage("வலைதளத்தின் உறுப்புகள்", widgetDescriptions()));
    write(topicPage("உறுப்புகளின் பண்புகள்", propertyDescriptions()));
    write(topicPage("பண்புகளின் மதிப்புகள்", valueDescriptions()));
    out << "ஒன்றைப் பற்றி அறிய: பொழில்-துணை விளக்கு எனில்\n"
           "பிழை எண்ணைப் பற்றி அறிய: பொழில்-துணை விளக்கு 203\n";
}

}  // namespace companion
