#include "sources.h"

namespace {

const char* const kPrintForms[] = {
    "அச்சிடு(\"வணக்கம், உலகம்! இது வரி எண்: \", 42)\n",
    "அச்சிடு(123456, ' ', 3.14159)\n",
    "அச்சிடு(மெய், \" அல்லது \", பொய்)\n",
    "அச்சிடு \"அடைப்புக்குறி இல்லாமலும் எழுதலாம்\"\n",
};

const char* const kFirstWords[] = {"மாணவர்கள்",   "ஆசிரியர்",  "பள்ளிக்கூடம்", "நூலகங்கள்",
                                   "விவசாயிகள்", "மருத்துவர்", "தொழிலாளர்",  "வணிகர்கள்",
                                   "கலைஞர்கள்",   "பயணிகள்",   "சிறுவர்கள்"};
const char* const kSecondWords[] = {"மதிப்பெண்",    "சம்பளங்கள்",     "முகவரிகள்",  "விளையாட்டு",
                                    "கணக்கெடுப்பு", "வருகைப்பதிவு", "தேர்ச்சியளவு"};
const char* const kThirdWords[] = {"தொகுப்பு", "சராசரி", "வேறுபாடு", "முன்னேற்றம்", "விழுக்காடு"};

std::string name(int number) {
    return std::string(kFirstWords[number % 11]) + "_" + kSecondWords[number % 7] + "_" +
           kThirdWords[number % 5];
}

}  // namespace

std::string printLines(int lines) {
    std::string source;
    for (int i = 0; i < lines; i++) source += kPrintForms[i % 4];
    return source;
}

std::string nameLines(int lines) {
    std::string source;
    for (int i = 0; i < lines; i++) {
        const std::string a = name(i);
        const std::string b = name(i * 3 + 1);
        const std::string c = name(i * 5 + 2);
        source += i % 2 == 0 ? a + " = " + b + "\n" : a + "(" + b + ", " + c + ")\n";
    }
    return source;
}
