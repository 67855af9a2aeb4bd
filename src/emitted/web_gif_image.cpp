// An animated image: the canvas can't play it, so it is an element of the page, laid over the
// canvas in each frame in which it is drawn. The frame's end hides it where it wasn't.
// clang-format off

#ifdef __EMSCRIPTEN__
void showGifImage(const char* id, const char* path, float x, float y, float w, float h, float radius, bool isHovered) {
    EM_ASM({
        var id = UTF8ToString($0);
        var path = UTF8ToString($1);
        var element = document.getElementById(id);
        if (!element) {
            element = document.createElement('img');
            element.id = id;
            element.className = 'pozhil-input';
            element.style.position = 'absolute';
            element.style.pointerEvents = 'none';
            element.style.objectFit = 'cover';
            element.style.zIndex = '1500';
            element.dataset.isHoveredState = 'false';
            var source = path;
            if (FS.analyzePath(path).exists) {
                source = URL.createObjectURL(new Blob([FS.readFile(path)], {type: 'image/gif'}));
            }
            element.dataset.rawSrc = source;
            element.src = source;
            // A Blob is found by its bare address only: it starts over all the same.
            element.onerror = function() {
                if (element.getAttribute('src') !== source) element.src = source;
            };
            document.body.appendChild(element);
        }
        var state = $7 ? 'true' : 'false';
        if (element.dataset.isHoveredState !== state) {
            element.dataset.isHoveredState = state;
            var again = element.dataset.rawSrc + '?t=' + new Date().getTime();
            element.src = $7 ? again : element.dataset.rawSrc;
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        element.style.display = 'block';
        element.style.left = (rect.left + window.scrollX + $2) + 'px';
        element.style.top = (rect.top + window.scrollY + $3) + 'px';
        element.style.width = $4 + 'px';
        element.style.height = $5 + 'px';
        element.style.borderRadius = $6 + 'px';
        element.dataset.touched = '1';
    }, id, path, x, y, w, h, radius, isHovered ? 1 : 0);
}
#endif
