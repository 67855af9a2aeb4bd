// The screen of a family of widgets: widgets/NAME.பொழில், built once by the real em++ and looked at in
// windows of several widths, on screens of one and of two pixels a pixel of the page. What is drawn
// is held against the measures: each text's place, size and colour, colours of pixels, and the shapes
// by golden pictures.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {launch, openPage, photograph, press, until} from './browser.mjs';
import {copyFonts} from './fonts.mjs';
import {nextFrames} from './frames.mjs';
import {holdPicture, readPicture, shapes} from './golden.mjs';
import {inputs} from './inputs.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './tool.mjs';

const screens = join(dirname(fileURLToPath(import.meta.url)), '..', 'widgets');
export const windows = [{width: 1280, height: 600}, {width: 700, height: 600}, {width: 400, height: 600}];
const fineWindows = windows.slice(1);  // with four pixels for each of the page

/**
 * Notes the texts of each frame on `window.texts`, and on `window.frames` how many were drawn. A frame is
 * a callback that wipes the whole text layer: the browser's driver asks for frames of its own.
 */
export function noteTexts() {
    let texts = [], isFrame = false;
    window.frames = 0;
    const layer = CanvasRenderingContext2D.prototype;
    const {clearRect, fillText} = layer;
    layer.clearRect = function(x, y, width, height) {
        if (width === this.canvas.width && height === this.canvas.height) isFrame = true;
        return clearRect.call(this, x, y, width, height);
    };
    layer.fillText = function(text, x, y) {
        const size = Number(/([\d.]+)px/.exec(this.font)[1]);
        const {width} = this.measureText(text);
        const left = this.textAlign === 'center' ? x - width / 2 : x;
        texts.push({text, x, y, left, width, size, font: this.font, colour: this.fillStyle, alpha: this.globalAlpha});
        return fillText.call(this, text, x, y);
    };
    const request = window.requestAnimationFrame;
    window.requestAnimationFrame = callback => request.call(window, time => {
        [texts, isFrame] = [[], false];
        callback(time);
        if (!isFrame) return;
        window.texts = texts;
        window.frames++;
    });
}

/**
 * Builds the screen of `family` for the tests of the file; `prepare` puts further files into its
 * folder. `open(ratio, options)` answers a page, the one of before if both are the same; `options` are
 * those of the browser's context, such as a telephone's.
 */
export function widgetScreen(family, prepare = () => {}) {
    let workplace, compiler, browser, shown;
    before(async () => {
        workplace = makeWorkplace();
        copyFonts(workplace.work);
        prepare(workplace.work);
        workplace.write('நிரல்.பொழில்', readFileSync(join(screens, `${family}.பொழில்`), 'utf8'));
        compiler = startCompiler(workplace, 'நிரல்.பொழில்');
        await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
        assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
        browser = await launch();
    });
    after(() => tidyUp(browser, compiler, workplace));

    async function open(ratio = 1, options = {}) {
        const kind = JSON.stringify({ratio, options});
        if (shown?.kind === kind) return shown.page;
        await shown?.page.context().close();  // it would go on drawing, and take its time from this one
        const desk = {viewport: windows[2], screen: {width: 1920, height: 1080}, deviceScaleFactor: ratio};
        const page = await openPage(browser, {...desk, ...options}, page => page.addInitScript(noteTexts));
        shown = {page, kind};
        await page.goto(address);
        await until(() => page.evaluate(() => window.frames > 1), 'the first frames');
        return page;
    }
    return {family, open};
}

/** Sets the window's size, and waits for frames that were drawn for it. */
export async function resize(page, size) {
    await page.setViewportSize(size);
    await until(() => page.evaluate(({width, height}) => {
        const {width: w, height: h} = document.getElementById('textCanvas').getBoundingClientRect();
        return w === width && h === height;
    }, size), 'the text layer to follow the window');
    await nextFrames(page);
}

/** The texts of the last frame. */
export const texts = page => page.evaluate(() => window.texts);

/** Clicks in the middle of a text, once it is drawn. */
export async function pressText(page, wanted) {
    const drawn = await until(async () => (await texts(page)).find(({text}) => text === wanted), `'${wanted}'`);
    await press(page, drawn.left + drawn.width / 2, drawn.y + drawn.size / 2);
}

/**
 * What the text layer has inside a rectangle of the page: how many of the screen's pixels have ink, and
 * [red, green, blue] of the one with the most.
 */
export const inkIn = (page, rectangle) => page.evaluate(({left, top, width, height}) => {
    const layer = document.getElementById('textCanvas');
    const ratio = window.devicePixelRatio;
    const {data} = layer.getContext('2d').getImageData(left * ratio, top * ratio, width * ratio, height * ratio);
    let pixels = 0, most = 0;
    for (let i = 0; i < data.length; i += 4) {
        if (data[i + 3] > 64) pixels++;
        if (data[i + 3] > data[most + 3]) most = i;
    }
    return {pixels, colour: [...data.subarray(most, most + 3)]};
}, rectangle);

export const near = (found, wanted, tolerance, what) =>
    assert.ok(Math.abs(found - wanted) <= tolerance, `${what} is ${found}, to be ${wanted}`);

/** A text of the frame stands where `wanted` says, and its ink is there, in its colour. */
async function holdText(page, drawn, wanted) {
    const found = drawn.filter(({text}) => text === wanted.text);
    assert.equal(found.length, 1, `'${wanted.text}' drawn once; drawn are ${drawn.map(({text}) => text)}`);
    const [{left, width, y, size, font}] = found;
    if (wanted.size !== undefined) near(size, wanted.size, 0.01, `the size of '${wanted.text}'`);
    if (wanted.width !== undefined) near(width, wanted.width, 1.5, `the width of '${wanted.text}'`);
    assert.equal(font.startsWith('bold '), wanted.weight === 'bold', `the weight of '${wanted.text}': ${font}`);
    near(y, wanted.y, 0.01, `y of '${wanted.text}'`);
    if (wanted.middle !== undefined) near(left + width / 2, wanted.middle, 0.5, `the middle of '${wanted.text}'`);
    if (wanted.x !== undefined) near(left, wanted.x, 0.5, `x of '${wanted.text}'`);
    const ink = await inkIn(page, {left, top: y, width: Math.max(width, 1), height: size * 1.2});
    if (wanted.isCovered) {
        assert.equal(ink.pixels, 0, `'${wanted.text}' is wiped away`);
        return;
    }
    assert.ok(ink.pixels > size / 2, `'${wanted.text}' has ${ink.pixels} pixels of ink`);
    (wanted.colour ?? [0, 0, 0]).forEach((channel, i) => near(ink.colour[i], channel, 8, `the colour of '${wanted.text}'`));
}

/**
 * One test for each window and ratio. `expected({width, height, scale})` answers `texts`, all that
 * are drawn, `colours`: rows of x, y and [red, green, blue], and `elements`, all that take what is
 * typed, as `inputs` tells them; scale is that of the texts' sizes.
 * Windows of the widths `pictured` have golden pictures. `arrange(page, size)` does something first.
 */
export function standsAsMeasured(screen, expected, {pictured = [1280, 400], arrange = async () => {}} = {}) {
    for (const ratio of [2, 1]) {
        for (const size of ratio === 1 ? windows : fineWindows) {
            test(`${screen.family}, ${size.width} wide, ${ratio} pixels a pixel`, async () => {
                const page = await screen.open(ratio);
                await resize(page, size);
                await arrange(page, size);
                const scale = Math.min(1.3, Math.max(0.65, size.width / 1280));
                const wanted = expected({...size, scale});
                const drawn = await texts(page);
                for (const text of wanted.texts) await holdText(page, drawn, text);
                assert.equal(drawn.length, wanted.texts.length, 'no other texts');
                assert.deepEqual(await inputs(page), wanted.elements ?? []);
                const shot = await shapes(page);
                const picture = readPicture(shot);
                for (const [x, y, colour] of wanted.colours) holdColour(picture, x, y, colour, ratio);
                if (ratio === 1 && pictured.includes(size.width)) {
                    await photograph(page, `widgets_${screen.family}_${size.width}`);
                    holdPicture(`${screen.family}_${size.width}`, shot);
                }
                assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
            });
        }
    }
}

function holdColour({data, width}, x, y, colour, ratio) {
    const at = 4 * (Math.floor(y * ratio) * width + Math.floor(x * ratio));
    const found = [...data.subarray(at, at + 3)];
    const isNear = found.every((channel, i) => Math.abs(channel - colour[i]) <= 3);  // shadows round
    assert.ok(isNear, `${x}, ${y} is ${found}, to be ${colour}`);
}
