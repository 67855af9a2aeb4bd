// The frames of an application, drawn when something happens or a test asks. Without a GPU a frame takes a
// tenth of a second of processor time: as many as a screen shows would take all of it while nobody looks.

const first = 4;       // come at once when a page is opened
const each = 2;        // after an event: one takes it, the next shows what its handler changed
const pause = 1000;    // milliseconds between others: what goes by time goes on, if slowly
const patience = 60_000;

const pages = new Set();

/** Runs in the page, behind all that wraps its frames: keeps them back, and gives them. */
function keepFrames({first, each, pause, patience}) {
    const request = window.requestAnimationFrame;
    let due = first, kept = [], timer = 0;
    let runs = 0, waiting = [];

    const isFrame = callback => callback.name === 'Browser_mainLoop_runner';
    const begin = callback => request.call(window, time => {
        callback(time);
        runs++;
        waiting.filter(({at}) => at <= runs).forEach(({resolve}) => resolve());
        waiting = waiting.filter(({at}) => at > runs);
    });
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

/** From its next document on the page draws on demand. */
export async function drawOnDemand(page) {
    await page.addInitScript(keepFrames, {first, each, pause, patience});
    pages.add(page);
    page.on('close', () => pages.delete(page));
}

/** Lets a page draw so many frames at once; all open ones without a page. It isn't waited for. */
export function giveFrames(count, ...some) {
    for (const page of some.length > 0 ? some : pages) {
        page.evaluate(wanted => window.giveFrames?.(wanted), count).catch(() => {});
    }
}

/** Waits until so many frames were drawn; the second of two knows all that was done before. */
export const nextFrames = (page, count = 2) => page.evaluate(wanted => window.drawFrames(wanted), count);
