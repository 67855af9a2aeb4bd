// The time that scripts take for a frame: what runs in the callback of the main loop. What the GPU and
// the compositor do isn't in it, nor is the wait for them that a look for errors would be.
import {launch, openPage, until} from '../../tests/browser/support/browser.mjs';
import {drawWhatIsSeen} from '../../tests/browser/support/frames.mjs';
import {compare, readPicture, shapes} from '../../tests/browser/support/golden.mjs';
import {standIn} from '../../tests/browser/support/stand_in.mjs';

const view = {viewport: {width: 1280, height: 720}, screen: {width: 1920, height: 1080}};
const rounds = 3;

const median = values => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

/** In the page, before its scripts: notes the time of each frame and how many texts it drew. */
function noteTimes() {
    window.times = [];
    window.textsDrawn = 0;
    WebGLRenderingContext.prototype.getError = () => 0;
    const fillText = CanvasRenderingContext2D.prototype.fillText;
    let drawn = 0;
    CanvasRenderingContext2D.prototype.fillText = function(...words) {
        drawn++;
        return fillText.apply(this, words);
    };
    const request = window.requestAnimationFrame;
    window.requestAnimationFrame = callback => request.call(window, time => {
        drawn = 0;
        const start = performance.now();
        callback(time);
        window.times.push(performance.now() - start);
        window.textsDrawn = drawn;
    });
    window.drawSeenFrame = async () => {
        const nextFrame = () => new Promise(resolve => request.call(window, resolve));
        window.isSeen = true;
        await nextFrame();  // its callbacks may have begun by now
        await nextFrame();
        window.isSeen = false;
    };
}

/** A clock that isn't coarse is for pages that are isolated from others. */
const isolated = {'Cross-Origin-Opener-Policy': 'same-origin', 'Cross-Origin-Embedder-Policy': 'require-corp'};

async function open(browser, program, isDrawn) {
    const server = await standIn(program);
    const page = await openPage(browser, view, async page => {
        if (!isDrawn) await page.addInitScript(drawWhatIsSeen);
        await page.addInitScript(noteTimes);
        await page.route(server.address, async route => {
            const response = await route.fetch();
            await route.fulfill({response, headers: {...response.headers(), ...isolated}});
        });
    }, {isOnDemand: false});
    await page.goto(server.address);
    await until(() => page.evaluate(() => window.times.length > 10).catch(() => false), 'frames', 60)
        .catch(() => { throw new Error(`no frames: ${page.problems.join('; ')}`); });
    if (!await page.evaluate(() => crossOriginIsolated)) throw new Error('the clock is coarse');
    return {page, server};
}

async function timesOf({page}, frames) {
    await page.bringToFront();
    await page.evaluate(() => { window.times.length = 0; });
    await page.waitForFunction(wanted => window.times.length >= wanted, frames, {timeout: 0});
    return page.evaluate(() => window.times);
}

/** Both are to draw the same, or nothing is measured. */
async function holdSame(ours, byHand) {
    const texts = await Promise.all([ours, byHand].map(({page}) => page.evaluate(() => window.textsDrawn)));
    if (texts[0] !== texts[1]) throw new Error(`texts in a frame: ${texts.join(' and ')}`);
    const pictures = [];
    for (const {page} of [ours, byHand]) pictures.push(readPicture(await shapes(page)));
    const {pixels} = compare(...pictures);
    if (pixels > 0) throw new Error(`the pictures differ in ${pixels} pixels`);
}

/**
 * Median milliseconds of a frame of ours and of the one by hand, over `frames` frames of each. Without a GPU most of
 * the time goes into drawing: frames that aren't drawn lack what scripts take for the orders to draw, and no more.
 */
export async function measureFrames(built, frames, {isDrawn = true} = {}) {
    const browser = await launch();
    const pages = [];
    try {
        for (const program of [built.program, built.byHand()]) pages.push(await open(browser, program, isDrawn));
        await holdSame(...pages);
        const times = [[], []];
        for (let round = 0; round < rounds; round++) {
            for (const [i, page] of pages.entries()) times[i].push(...await timesOf(page, frames / rounds));
        }
        return {ours: median(times[0]), byHand: median(times[1])};
    } finally {
        await browser.close();
        for (const {server} of pages) await server.goAway();
    }
}
