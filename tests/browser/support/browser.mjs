// Debian's Chromium, a page that notes what goes wrong in it, and screenshots as test output.
import {mkdirSync} from 'node:fs';
import {join} from 'node:path';
import {chromium} from 'playwright-core';
import {drawOnDemand, giveFrames, shoot, shootAtRest} from './frames.mjs';
import {lossOfDrawing} from './loss.mjs';

const output = process.env.POZHIL_BROWSER_OUTPUT ?? 'browser-output';

const flags = [
    '--no-sandbox', '--disable-quic', '--no-first-run', '--disable-background-networking',
    '--disable-component-update', '--disable-sync',
    '--font-render-hinting=slight',  // a font of the page's own is written as the system's is
];
// Mesa draws a frame in half the time that the browser's own drawing without a GPU takes. To put the layers of
// a page together, and to photograph it, is quicker without.
const mesa = ['--use-gl=angle', '--use-angle=gl-egl', '--ignore-gpu-blocklist', '--disable-gpu-compositing'];

/** A screen larger than the viewport, as on a desk. */
export const desk = {viewport: {width: 1280, height: 720}, screen: {width: 1920, height: 1080}};

export function launch(extraFlags = []) {
    return chromium.launch({
        executablePath: process.env.POZHIL_CHROMIUM ?? '/usr/bin/chromium-headless-shell',
        args: [...flags, ...mesa, ...extraFlags],
    });
}

function noteLoss(words) {
    window.addEventListener('webglcontextlost', event => {
        if (event.target.id === 'canvas') console.error(words);
    }, true);
}

/**
 * A page of a context of its own. `page.problems` collects errors of console and scripts,
 * `page.printed` what programs print; warnings are the driver's. Nothing outside this machine is reached.
 * Frames are drawn on demand, if it isn't said otherwise.
 */
export async function openPage(browser, options = desk, prepare = async () => {}, {isOnDemand = true} = {}) {
    const context = await browser.newContext(options);
    await context.route(url => url.hostname !== 'localhost', route => route.abort());
    const page = await context.newPage();
    await page.addInitScript(noteLoss, lossOfDrawing);
    page.problems = [];
    page.printed = [];
    page.on('console', message => {
        const missing = message.text().startsWith('Failed to load') ? ` ${message.location().url}` : '';
        if (message.text() === lossOfDrawing) console.log(lossOfDrawing);
        if (message.type() === 'error') page.problems.push(message.text() + missing);
        if (message.type() === 'log') page.printed.push(message.text());
    });
    page.on('pageerror', error => page.problems.push(String(error)));
    await prepare(page);
    if (isOnDemand) await drawOnDemand(page);
    return page;
}

function pictureFile(name) {
    mkdirSync(output, {recursive: true});
    return join(output, `${name}.png`);
}

export const photograph = (page, name) => shoot(page, {path: pictureFile(name)});

/** The same when nothing on the page moves any more. */
export const photographAtRest = (page, name) => shootAtRest(page, {path: pictureFile(name)}, {seconds: 300});

/** The colours [red, green, blue] of what the user sees in `clip`, row by row, in the screen's pixels. */
export async function pixels(page, clip) {
    const shot = await shoot(page, {clip});
    return page.evaluate(async bytes => {
        const image = await createImageBitmap(await (await fetch(bytes)).blob());
        const context = new OffscreenCanvas(image.width, image.height).getContext('2d');
        context.drawImage(image, 0, 0);
        const {data} = context.getImageData(0, 0, image.width, image.height);
        return Array.from({length: data.length / 4}, (_, i) => [...data.subarray(4 * i, 4 * i + 3)]);
    }, `data:image/png;base64,${shot.toString('base64')}`);
}

/** The colour [red, green, blue] at one place of what the user sees. */
export async function pixel(page, x, y) {
    return (await pixels(page, {x, y, width: 1, height: 1}))[0];
}

/** Clicks, and waits until a frame has taken the click: a pointer that moves on before takes it along. */
export async function press(page, x, y) {
    await page.mouse.click(x, y);
    await until(() => page.evaluate(() => !window.mouseClicked), 'a frame to take the click');
}

/**
 * Waits until `holds` answers something true, and returns it. Each look that was in vain asks open pages for
 * `frames` more; a wait for what no frame brings about, such as a build, asks for none.
 */
export async function until(holds, what, seconds = 180, frames = 1) {
    const deadline = Date.now() + seconds * 1000;
    for (let milliseconds = 40; ; milliseconds = Math.min(1.1 * milliseconds, 300)) {
        const answer = await holds();
        if (answer) return answer;
        if (Date.now() > deadline) throw new Error(`not within ${seconds} s: ${what}`);
        if (frames > 0) giveFrames(frames);
        await new Promise(resolve => setTimeout(resolve, milliseconds));
    }
}
