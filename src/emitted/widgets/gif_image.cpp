// An animated image. It starts over when the pointer comes near.

void gif_image() {
    float imgX = std::floor(POZHIL_X);
    float imgY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float r = POZHIL_RADIUS;
    std::string path = POZHIL_PATH;
    std::string imgId = "gif_POZHIL_ID";
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isImgHover = mx >= imgX - 10.0f && mx <= imgX + tw + 10.0f && my >= imgY - 10.0f &&
                      my <= imgY + th + 10.0f;
    showGifImage(imgId.c_str(), path.c_str(), imgX, imgY, tw, th, r, isImgHover);
}
