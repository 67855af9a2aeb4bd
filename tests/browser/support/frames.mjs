// The frames of an application, drawn when something happens or a test asks; and of these only what is
// photographed reaches the graphics card. Without a GPU a frame takes a tenth of a second of processor time: as
// many as a screen shows would take all of it while nobody looks.

const first = 4;       // come at once when a page is opened
const each = 2;        // after an event: one takes it, the next shows what its handler changed
const pause = 1000;    // milliseconds between others: what goes by time goes on, if slowly
const patience = 60_000;

const pages = new Set();

/**
 * Runs in the page ahead of its scripts: until `window.isSeen` the graphics card gets all but the order to draw.
 * What stands on the screen stays there meanwhile. The text layer, written on by each frame, is no part of the
 * screen but while `window.unseen` is disabled: the browser would put the page together anew each time.
 */
export function drawWhatIsSeen() {
    window.isSeen = false;
    window.unseen = new CSSStyleSheet();
    window.unseen.replaceSync('#textCanvas { visibility: hidden }');
    document.adoptedStyleSheets = [window.unseen];
    for (const {prototype} of [WebGLRenderingContext, WebGL2RenderingContext]) {
        for (const order of ['clear', 'drawArrays', 'drawElements']) {
            const draw = prototype[order];
            prototype[order] = function(...words) {
                if (window.isSeen) draw.apply(this, words);
            };
        }
    }
}

/**
 * Runs in the page ahead of its scripts: sums up what each frame hands to the graphics card and to the text layer,
 * each on `window.drawn`, which whoever begins a frame sets back. Frames of the same sums look alike.
 */
function sumDrawing() {
    window.drawn = {shapes: 0, texts: 0, isFrame: false};
    const mixed = (sum, value) => Math.imul(sum ^ value, 16777619) | 0;
    const mix = value => { window.drawn.shapes = mixed(window.drawn.shapes, value); };
    const mixText = text => {
        for (let i = 0; i < text.length; i++) window.drawn.texts = mixed(window.drawn.texts, text.charCodeAt(i));
    };
    const bytes = value => {
        const {buffer, byteOffset, byteLength} = ArrayBuffer.isView(value) ? value : new Float32Array(value);
        const words = new Uint32Array(buffer.slice(byteOffset, byteOffset + (byteLength & ~3)));
        for (const word of words) mix(word);
    };
    const mixAny = value => {
        if (typeof value === 'number' || typeof value === 'boolean') mix(value);
        else if (ArrayBuffer.isView(value) || Array.isArray(value)) bytes(value);
    };
    const note = (owner, name, take) => {
        const original = owner[name];
        owner[name] = function(...words) {
            take.apply(this, words);
            return original.apply(this, words);
        };
    };
    for (const {prototype} of [WebGLRenderingContext, WebGL2RenderingContext]) {
        for (const name of ['bufferData', 'uniform2fv', 'uniform4fv', 'texImage2D', 'texSubImage2D', 'clearColor',
            'viewport', 'drawArrays', 'drawElements']) {
            note(prototype, name, (...words) => words.forEach(mixAny));
        }
    }
    const layer = CanvasRenderingContext2D.prototype;
    note(layer, 'clearRect', () => { window.drawn.isFrame = true; });
    note(layer, 'fillText', function(text, x, y) {
        mixText([text, x, y, this.font, this.fillStyle, this.globalAlpha].join('|'));
    });
}

/** Runs in the page, behind all that wraps its frames: keeps them back, and gives them. */
function keepFrames({first, each, pause, patience}) {
    const request = window.requestAnimationFrame;
    let due = first, kept = [], timer = 0;
    let runs = 0, begun = 0, waiting = [], drawn = {};

    const isFrame = callback => callback.name === 'Browser_mainLoop_runner';
    const begin = callback => {
        begun++;
        return request.call(window, time => {
            begun--;
            window.drawn = {shapes: 0, texts: 0};
            callback(time);
            ({drawn} = window);
            runs++;
            waiting.filter(({at}) => at <= runs).forEach(({resolve}) => resolve());
            waiting = waiting.filter(({at}) => at > runs);
        });
    };
    const goOn = () => {
        clearTimeout(timer);
        const callbacks = kept;
        kept = [];
        callbacks.forEach(begin);
    };

    window.giveFrames = count => {
        due = Math.max(due, count);
        if (kept.length === 0) return;
        due--;
        goOn();
    };
    window.drawFrames = count => {
        window.giveFrames(count);
        return new Promise((resolve, reject) => {
            waiting.push({at: runs + count, resolve});
            setTimeout(() => reject(new Error(`no ${count} frames within ${patience} ms`)), patience);
        });
    };
    window.drawSeenFrame = async () => {
        if (kept.length + begun === 0) return;  // it draws no more, or not yet
        window.isSeen = true;
        await window.drawFrames(1).finally(() => { window.isSeen = false; });
    };
    window.lookOfFrame = async hasTexts => {
        if (kept.length + begun > 0) await window.drawFrames(1);
        const moving = document.getAnimations().filter(({playState}) => playState === 'running').length;
        return [drawn.shapes, hasTexts && drawn.texts, innerWidth, innerHeight, moving && performance.now(), document.body.innerHTML].join('|');
    };
    window.requestAnimationFrame = callback => {
        if (!isFrame(callback)) return request.call(window, callback);
        if (due > 0) {
            due--;
            return begin(callback);
        }
        kept.push(callback);
        clearTimeout(timer);
        timer = setTimeout(goOn, pause);
        return 0;
    };
    for (const event of ['mousemove', 'mousedown', 'mouseup', 'click', 'wheel', 'touchstart', 'touchmove', 'touchend',
        'keydown', 'keyup', 'input', 'paste', 'focusin', 'focusout', 'scroll', 'resize']) {
        window.addEventListener(event, () => window.giveFrames(each), {capture: true, passive: true});
    }
}

/** From its next document on the graphics card draws what `seeFrame` asks for, and nothing else; all is summed up. */
export async function drawOnlySeen(page) {
    await page.addInitScript(drawWhatIsSeen);
    await page.addInitScript(sumDrawing);
}

/** From its next document on the page draws on demand. */
export async function drawOnDemand(page) {
    await page.addInitScript(keepFrames, {first, each, pause, patience});
    await drawOnlySeen(page);
    pages.add(page);
    page.on('close', () => pages.delete(page));
}

/** Lets a page draw so many frames at once; all open ones without a page. It isn't waited for. */
export function giveFrames(count, ...some) {
    for (const page of some.length > 0 ? some : pages) {
        page.evaluate(wanted => window.giveFrames?.(wanted), count).catch(() => {});
    }
}

/**
 * Has the graphics card draw the next frame, and answers what `look` does: what is photographed meanwhile is what it
 * has drawn last, under the text layer.
 */
export async function seeFrame(page, look) {
    await page.evaluate(async () => {
        if (window.unseen) window.unseen.disabled = true;
        await window.drawSeenFrame?.();
    });
    try {
        return await look();
    } finally {
        await page.evaluate(() => { if (window.unseen) window.unseen.disabled = false; }).catch(() => {});
    }
}

/** A screenshot of the page as it is now. */
export const shoot = (page, options) => seeFrame(page, () => page.screenshot(options));

/** What tells one frame from another: what it draws; on a page that draws on its own its picture. */
const lookOf = async (page, hasTexts, options) =>
    await page.evaluate(counted => window.lookOfFrame?.(counted), hasTexts) ?? (await shoot(page, options)).toString('base64');

/**
 * A screenshot of a page on which nothing moves any more: two frames in a row were alike, in their shapes at least
 * if texts don't count.
 */
export async function shootAtRest(page, options = {}, {seconds = 10, hasTexts = true} = {}) {
    const deadline = Date.now() + seconds * 1000;
    for (let last = ''; ;) {
        const look = await lookOf(page, hasTexts, options);
        if (look === last) return shoot(page, options);
        if (Date.now() > deadline) throw new Error(`still moves after ${seconds} s`);
        last = look;
        await page.waitForTimeout(100);
    }
}

/** Waits until so many frames were drawn; the second of two knows all that was done before. */
export const nextFrames = (page, count = 2) => page.evaluate(wanted => window.drawFrames(wanted), count);
