// An application on the screens there are: telephones, held either way and turned, and screens
// whose pixels are finer than the page's.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {desk, launch, openPage, photograph, pixels, press, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const source = `வலைதளம் திரைகள்(
    தலைமை(
        பின்னணி: "#FFF3E0"
    )
    குமரி(
        உரை("எல்லாத் திரைகளுக்கும் ஒரே தளம்")
    )
    வரையறை(
        எண்ணிக்கை = 0
    )
)
`;
const background = [0xff, 0xf3, 0xe0];
const black = [0, 0, 0];
const corner = [200, 30, 60];

const telephones = {
    small: {width: 320, height: 568, ratio: 2},
    usual: {width: 390, height: 844, ratio: 3},
    large: {width: 412, height: 916, ratio: 1.75},
};

const telephone = (size, ratio) =>
    ({viewport: size, screen: size, deviceScaleFactor: ratio, isMobile: true, hasTouch: true});

let workplace, compiler, browser;

before(async () => {
    workplace = makeWorkplace();
    const drawn = join(dirname(fileURLToPath(import.meta.url)), 'drawn_on_screens.inc');
    workplace.drawByHand(readFileSync(drawn, 'utf8'));
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the first build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
});

after(() => tidyUp(browser, compiler, workplace));

async function open(options) {
    const page = await openPage(browser, options);
    await page.goto(address);
    await page.waitForFunction(() => window.seen?.frames > 1, null, {timeout: 60000});
    return page;
}

/** Waits for the frame's own sizes and those of both canvases, in the page's and the screen's pixels. */
async function fills(page, {width, height}, ratio) {
    const expected = {
        frame: [width, height], page: [width, height],
        canvas: [width, height, width * ratio, height * ratio],
        textCanvas: [width, height, width * ratio, height * ratio],
    };
    let found;
    await until(async () => {
        found = await page.evaluate(() => {
            const sizes = id => {
                const canvas = document.getElementById(id);
                const {width, height} = canvas.getBoundingClientRect();
                return [width, height, canvas.width, canvas.height];
            };
            return {
                frame: [window.seen.width, window.seen.height], page: [innerWidth, innerHeight],
                canvas: sizes('canvas'), textCanvas: sizes('textCanvas'),
            };
        });
        return JSON.stringify(found) === JSON.stringify(expected);
    }, 'the sizes', 30).catch(() => assert.deepEqual(found, expected));
    await until(async () => {
        const row = await pixels(page, {x: width - 30, y: height - 10, width: 20, height: 1});
        return String(row[0]) === String(background) && String(row[20 * ratio - 1]) === String(corner);
    }, 'the corner');
}

for (const [name, {width, height, ratio}] of Object.entries(telephones)) {
    const upright = {width, height};
    const lying = {width: height, height: width};

    test(`fills a ${name} telephone, held upright and turned`, async () => {
        const page = await open(telephone(upright, ratio));
        await fills(page, upright, ratio);
        if (name === 'usual') await photograph(page, 'telephone');
        await page.touchscreen.tap(200, 150);
        await until(() => page.evaluate(() => window.seen.hits === 1), 'the tap');
        await page.setViewportSize(lying);
        await fills(page, lying, ratio);
        if (name === 'usual') await photograph(page, 'telephone_turned');
        await page.touchscreen.tap(200, 150);
        await until(() => page.evaluate(() => window.seen.hits === 2), 'the tap after the turn');
        await page.context().close();
    });

    test(`fills a ${name} telephone that lies and is held upright again`, async () => {
        const page = await open(telephone(lying, ratio));
        await fills(page, lying, ratio);
        await page.setViewportSize(upright);
        await fills(page, upright, ratio);
        await page.context().close();
    });
}

for (const ratio of [1, 2, 3]) {
    test(`is sharp where a pixel of the page has ${ratio} of the screen across, and clicks land`, async () => {
        const page = await open({...desk, viewport: {width: 320, height: 240}, deviceScaleFactor: ratio});
        await fills(page, {width: 320, height: 240}, ratio);
        const side = 20 * ratio;
        const leftEdge = (await pixels(page, {x: 130, y: 150, width: 20, height: 1})).slice(0, side);
        const topEdge = (await pixels(page, {x: 180, y: 90, width: 1, height: 20}))
            .filter((_, i) => i % ratio === 0);
        for (const line of [leftEdge, topEdge]) {
            const edge = side / 2 + 1;
            assert.equal(line.length, side);
            line.forEach((colour, i) => {
                if (i < edge - 1) assert.deepEqual(colour, background, `${i - edge} from the edge`);
                if (i > edge) assert.deepEqual(colour, black, `${i - edge} from the edge`);
            });
        }
        // A frame takes one click, so that each waits for its own.
        const clicks = {hits: [[142, 102], [239, 199]], misses: [[139, 150], [242, 150], [190, 99], [190, 202]]};
        for (const [kind, places] of Object.entries(clicks)) {
            for (const [i, [x, y]] of places.entries()) {
                await press(page, x, y);
                await until(() => page.evaluate(name => window.seen[name], kind).then(count => count === i + 1),
                    `${kind} at ${x}, ${y}`);
            }
        }
        if (ratio === 2) await photograph(page, 'sharp');
        await page.context().close();
    });
}
