// The video behind a page: one muted element below everything else, which shows the video that was
// started last.
// clang-format off

#ifdef __EMSCRIPTEN__
void startBackgroundVideo(const char* path) {
    EM_ASM({
        var video = document.getElementById('pozhilVideo');
        if (!video) {
            video = document.createElement('video');
            video.id = 'pozhilVideo';
            video.style.position = 'fixed';
            video.style.top = '0';
            video.style.left = '0';
            video.style.width = '100vw';
            video.style.height = '100vh';
            video.style.objectFit = 'cover';
            video.style.zIndex = '-1';
            video.muted = true;
            video.autoplay = true;
            video.loop = true;
            document.body.appendChild(video);
        }
        try {
            var data = FS.readFile(UTF8ToString($0));
            video.src = URL.createObjectURL(new Blob([data], {type: 'video/mp4'}));
            console.log("காணொளி வெற்றிகரமாக லோட் செய்யப்பட்டது!");
        } catch (e) {
            console.error("காணொளி பிழை:", e);
        }
    }, path);
}
#endif
