// Frames are drawn only until the drawing rests: without a GPU each takes the processor's time. A frame
// is told by what it hands to the graphics card and to the text layer.
import assert from 'node:assert/strict';
import {until} from './browser.mjs';
import {drawOnlySeen} from './frames.mjs';

/** Frames that are drawn alike before the drawing counts as resting. */
const alikeAtRest = 2;

/**
 * In the page, before its scripts: its clock stands, by which pages draw, and its frames stop when they are
 * alike. `window.goOn(milliseconds)` lets time pass, and frames be drawn until they are alike again.
 */
function drawUntilAtRest(wanted) {
    let now = 400, last = null, alike = 0, drawing = null, held = null;
    performance.now = () => now;

    const request = window.requestAnimationFrame;
    window.requestAnimationFrame = callback => {
        const frame = time => {
            window.drawn = {shapes: 0, texts: 0, isFrame: false};
            callback(time);
            if (!window.drawn.isFrame) return;
            const sum = `${window.drawn.shapes} ${window.drawn.texts}`;
            drawing = callback;
            alike = sum === last ? alike + 1 : 0;
            last = sum;
        };
        if (callback !== drawing || alike < wanted) return request.call(window, frame);
        held = frame;
        return 0;
    };
    const drawHeld = () => {
        if (held) request.call(window, held);
        held = null;
    };
    window.isAtRest = () => held !== null;
    window.goOn = milliseconds => {
        now += milliseconds;
        alike = 0;
        drawHeld();
    };
    window.drawSeenFrame = () => {
        if (!held) return;
        window.isSeen = true;
        drawHeld();
        return new Promise(resolve => request.call(window, resolve)).then(() => { window.isSeen = false; });
    };
}

/** For a page that isn't open yet. */
export async function restWhenDrawn(page) {
    await page.addInitScript(drawUntilAtRest, alikeAtRest);
    await drawOnlySeen(page);
}

/** What went wrong on the page; files that only the net has are not asked for. */
export const problems = page => page.problems.filter(line => !line.includes('ERR_FAILED'));

/** Waits until nothing on the page changes any more. A program that ended draws nothing, but it says why. */
export const rest = page => until(() => {
    assert.deepEqual(problems(page), []);
    return page.evaluate(() => window.isAtRest?.());
}, 'the page to come to rest', 120);

/** Lets so much of the page's time go by, has it draw what came of that, and waits until it rests. */
export async function goOn(page, milliseconds = 0) {
    await page.evaluate(more => window.goOn(more), milliseconds);
    await rest(page);
}
