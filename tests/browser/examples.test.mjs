// Every example of examples/web, by the real em++ in a real browser: it opens without an error on a
// desk, a tablet and a telephone, draws texts and shapes, and does what its buttons say.
import assert from 'node:assert/strict';
import {cpSync, existsSync, readdirSync, readFileSync} from 'node:fs';
import {basename, dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {after, afterEach, before, describe, test} from 'node:test';
import {launch, openPage, photograph, press, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const folder = join(dirname(fileURLToPath(import.meta.url)), '..', '..', 'examples', 'web');
const sources = readdirSync(folder, {recursive: true}).filter(name => name.endsWith('.பொழில்'));
const screens = [[1280, 720], [700, 800], [400, 800]];

let browser;
before(async () => { browser = await launch(); });
after(() => browser?.close());

/** How many pixels of the text layer are written on, and a sum that changes with them. */
const texts = page => page.evaluate(() => {
    const layer = document.getElementById('textCanvas');
    if (!layer) return {written: 0, sum: 0};
    const {data} = layer.getContext('2d').getImageData(0, 0, layer.width, layer.height);
    let written = 0, sum = 0;
    for (let i = 3; i < data.length; i += 4) {
        if (data[i] > 0) written++;
        sum = (sum * 31 + data[i]) % 1000003;
    }
    return {written, sum};
}).catch(() => ({written: 0, sum: 0}));

/** The number of different colours of what is seen. */
async function colours(page) {
    const shot = await page.screenshot();
    return page.evaluate(async bytes => {
        const image = await createImageBitmap(await (await fetch(bytes)).blob());
        const context = new OffscreenCanvas(image.width, image.height).getContext('2d');
        context.drawImage(image, 0, 0);
        return new Set(new Uint32Array(context.getImageData(0, 0, image.width, image.height).data.buffer)).size;
    }, `data:image/png;base64,${shot.toString('base64')}`);
}

/** The page of the example that is served, at a size; its texts are drawn. */
async function open([width, height]) {
    const page = await openPage(browser, {viewport: {width, height}, screen: {width: 1920, height: 1080}});
    await page.goto(address);
    await until(async () => (await texts(page)).written > 500, 'the texts');
    return page;
}

const problems = page => page.problems.filter(line => !line.includes('ERR_FAILED'));

/** Clicks there, and waits until the texts are others than before and stay so. */
async function clickChangesTexts(page, x, y) {
    await still(page);
    const before = (await texts(page)).sum;
    await press(page, x, y);
    await until(async () => (await texts(page)).sum !== before, `a change by a click at ${x}, ${y}`, 20);
}

/** Waits until the texts no longer move. */
async function still(page) {
    let last;
    await until(async () => {
        const {sum} = await texts(page);
        const isStill = sum === last;
        last = sum;
        await page.waitForTimeout(300);
        return isStill;
    }, 'the texts to come to rest', 120);
}

// What an example does, on the desk's screen. One without a row is opened alone.
const deeds = {
    'கணக்கி': page => clickChangesTexts(page, 705, 452),
    'பணிகள்': page => clickChangesTexts(page, 640, 588),
    async 'சந்தை'(page) {
        await clickChangesTexts(page, 905, 206);
        await still(page);
        const before = (await texts(page)).sum;
        await page.mouse.wheel(0, 200);
        await until(async () => (await texts(page)).sum !== before, 'the list to scroll', 20);
    },
    'படத்தொகுப்பு': page => clickChangesTexts(page, 200, 300),
    async 'முகப்பு'(page) {
        await clickChangesTexts(page, 640, 385);
        assert.equal(await page.title(), 'இனிப்புகள்');
    },
};

test('there are examples, and each deed has one', () => {
    const names = sources.map(source => basename(source, '.பொழில்'));
    assert.ok(names.length >= 4, String(names));
    assert.deepEqual(Object.keys(deeds).filter(name => !names.includes(name)), []);
});

for (const source of sources) {
    const name = basename(source, '.பொழில்');
    describe(name, () => {
        let workplace, compiler, page;

        before(async () => {
            workplace = makeWorkplace();
            const assets = join(folder, dirname(source), 'assets');
            if (existsSync(assets)) cpSync(assets, join(workplace.work, 'assets'), {recursive: true});
            workplace.write('நிரல்.பொழில்', readFileSync(join(folder, source), 'utf8'));
            compiler = startCompiler(workplace, 'நிரல்.பொழில்');
            await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 200);
            assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
        });
        afterEach(async () => { await page?.context().close(); });
        after(() => tidyUp(undefined, compiler, workplace));

        for (const screen of screens) {
            test(`opens ${screen[0]} pixels wide`, async () => {
                page = await open(screen);
                await still(page);
                await photograph(page, `example_${name}_${screen[0]}`);
                assert.ok(await colours(page) > 50, 'texts alone, or nothing at all');
                assert.deepEqual(problems(page), []);
            });
        }
        if (deeds[name]) {
            test('does what it says', async () => {
                page = await open(screens[0]);
                await deeds[name](page);
                await photograph(page, `example_${name}_used`);
                assert.deepEqual(problems(page), []);
            });
        }
    });
}
