// Check boxes in the browser: what a click changes, what the program changes, what an error shows.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, photograph, pixel, press, until} from './support/browser.mjs';
import {nextFrames} from './support/frames.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const source = `வலைதளம் படிவம்(
    தலைமை(
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(
            தேர்வுபெட்டி(அடையாளம்: "ஒப்புதல்", உரை("ஏற்கிறேன்"))
            உரை(" ")
            உரை(ஒப்புதல்)
            தேர்வுபெட்டி(தேர்வுபெட்டிநிலை: மெய், செயலிழப்பு: பொய், தேர்வு_நிறம்: "#2E7D32")
            தேர்வுபெட்டி(அடையாளம்: "மறுபக்கம்")
        )
    )
    வரையறை(
        ஒப்புதல்.பிழைசெய்தி("இது தேவை")
        மறுபக்கம் = மெய்
    )
)
`;

const blue = [33, 150, 243], green = [46, 125, 50], white = [255, 255, 255], red = [244, 67, 54];
// The column begins at the page's corner: boxes of 24 pixels at 0, 56 and 80, two texts of 16 between.
// A pixel of the fill lies left of the tick.
const named = {x: 3, y: 12}, disabled = {x: 3, y: 56 + 12}, ofProgram = {x: 3, y: 80 + 12};
const edgeOfError = {x: 12, y: 26};

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
    page = await openPage(browser);
    await page.goto(address);
});

after(() => tidyUp(browser, compiler, workplace));

const shows = (place, colour) => until(async () =>
    (await pixel(page, place.x, place.y)).join() === colour.join(), `${colour} at ${place.x}, ${place.y}`);

/** Texts drawn since the last call of `forget`, in their order. */
const forget = () => page.evaluate(() => {
    window.drawnTexts ??= (() => {
        const original = CanvasRenderingContext2D.prototype.fillText;
        CanvasRenderingContext2D.prototype.fillText = function(text, ...rest) {
            window.drawnTexts.add(text);
            return original.call(this, text, ...rest);
        };
        return new Set();
    })();
    window.drawnTexts.clear();
});
const drawsText = text => until(async () => {
    await forget();
    await nextFrames(page);
    return page.evaluate(wanted => window.drawnTexts.has(wanted), text);
}, `the text ${text}`);

test('starts as source and program say, with the error shown', async () => {
    await shows(named, white);
    await shows(edgeOfError, red);
    await shows(disabled, green);
    await shows(ofProgram, blue);
    await drawsText('இது தேவை');
    await drawsText('பொய்');
    await photograph(page, 'check_box_with_error');
});

test('a click on the box toggles it once, tells the program, and clears the error', async () => {
    await page.mouse.move(12, 12);
    await until(() => page.evaluate(() => document.body.style.cursor === 'pointer'), 'the pointer');
    await press(page, 12, 12);
    await shows(named, blue);
    await shows(edgeOfError, white);
    await drawsText('மெய்');
    await photograph(page, 'check_box_checked');
});

test('a click on its label toggles it too', async () => {
    await press(page, 24 + 12 + 20, 12);
    await shows(named, white);
    await drawsText('பொய்');
});

test('a disabled box takes no click and shows no hand', async () => {
    await page.mouse.move(disabled.x + 9, disabled.y);
    await press(page, disabled.x + 9, disabled.y);
    await nextFrames(page);
    assert.equal(await page.evaluate(() => document.body.style.cursor), 'default');
    await shows(disabled, green);
});

test('a box that the program set can be cleared', async () => {
    await press(page, ofProgram.x + 9, ofProgram.y);
    await shows(ofProgram, white);
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
