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

std::string mixedLines(int lines) {
    constexpr int kBlockLines = 12;
    std::string source;
    int written = 0;
    for (; written + kBlockLines <= lines; written += kBlockLines) {
        const std::string a = name(written);
        const std::string b = name(written * 3 + 1);
        const std::string c = name(written * 5 + 2);
        source += a + " = 42\n";
        source += b + " = " + a + " கூட்டு 3.5\n";
        source += c + " = [" + a + ", " + b + ", \"வணக்கம்\"]\n";
        source += "எனில் " + a + " பெரிது 10:\n    அச்சிடு(" + a + ", " + b + ")\n";
        source += "இல்லை:\n    " + b + " = " + b + " கழி 1\n";
        source += "ஒவ்வொன்றாக உறுப்பு இல் " + c + ":\n    அச்சிடு(உறுப்பு)\n";
        source += "செயல் கணக்கிடு(தொகை):\n    திரும்பு தொகை பெருக்கு 2\n";
        source += "அச்சிடு(கணக்கிடு(" + a + "))\n";
    }
    return source + printLines(lines - written);
}

std::string chainOfSums(int terms) {
    std::string source = "தொகை = 1";
    for (int i = 1; i < terms; i++) source += " கூட்டு " + std::to_string(i % 9 + 1);
    return source + "\n";
}

std::string columnOfBoxes(int boxes) {
    std::string source = "வலைதளம் பட்டி(\n    தலைமை()\n    குமரி(\n        நெடுவரிசை(\n";
    for (int i = 0; i < boxes; i++) {
        source += "            பெட்டி(அகலம்: 200, உயரம்: 40, பெட்டி_பாணி(பின்னணி: \"#2196F3\"), உரை(\"" +
                  name(i) + "\")),\n";
    }
    return source + "        )\n    )\n    வரையறை()\n)\n";
}
