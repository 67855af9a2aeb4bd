#include "driver/web_road.h"

#include <iostream>

int refuseWebRoad() {
    std::cout << "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        " << std::endl;
    std::cout << "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      " << std::endl;
    std::cerr << "பிழை: வலைத்தள உருவாக்கம் இந்தப் பதிப்பில் இன்னும் சேர்க்கப்படவில்லை." << std::endl;
    return 1;
}
