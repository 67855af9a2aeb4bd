// Every example of examples/web, by the real em++ in a real browser: it opens without an error on a
// telephone, a tablet and a desk, draws texts and shapes inside the window, and does what it says. An
// example is opened once, and its window takes the three sizes.
import assert from 'node:assert/strict';
import {cpSync, existsSync, readdirSync, readFileSync} from 'node:fs';
import {basename, dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {after, before, describe, test} from 'node:test';
import {launch, openPage, photograph, press, until} from './support/browser.mjs';
import {nextFrames, shoot} from './support/frames.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';
import {noteTexts, resize, texts} from './support/widget_screen.mjs';

const folder = join(dirname(fileURLToPath(import.meta.url)), '..', '..', 'examples', 'web');
const sources = readdirSync(folder, {recursive: true}).filter(name => name.endsWith('.பொழில்'));
const [telephone, tablet, desk] = [[390, 800], [700, 800], [1280, 720]];

/** Examples whose rows go on beyond the window's edge, and scroll. */
const wider = ['படத்தொகுப்பு', 'முகப்பு'];

let browser;
before(async () => { browser = await launch(); });
after(() => browser?.close());

/** Collects every text that was ever drawn on `window.everDrawn`: what shows shortly is not missed. */
function rememberTexts() {
    window.everDrawn = new Set();
    const fillText = CanvasRenderingContext2D.prototype.fillText;
    CanvasRenderingContext2D.prototype.fillText = function(text, ...rest) {
        window.everDrawn.add(text);
        return fillText.call(this, text, ...rest);
    };
}

/** Of a screenshot the number of colours, and the middle of all that has the colour [red, green, blue]. */
async function look(page, colour = [0, 0, 0], shot = undefined) {
    shot ??= await shoot(page);
    return page.evaluate(async ({bytes, colour: [red, green, blue]}) => {
        const image = await createImageBitmap(await (await fetch(bytes)).blob());
        const context = new OffscreenCanvas(image.width, image.height).getContext('2d');
        context.drawImage(image, 0, 0);
        const {data} = context.getImageData(0, 0, image.width, image.height);
        let x = 0, y = 0, count = 0;
        for (let i = 0; i < data.length; i += 4) {
            if (Math.abs(data[i] - red) + Math.abs(data[i + 1] - green) + Math.abs(data[i + 2] - blue) > 6) continue;
            x += i / 4 % image.width;
            y += Math.floor(i / 4 / image.width);
            count++;
        }
        return {colours: new Set(new Uint32Array(data.buffer)).size, x: x / count, y: y / count, count};
    }, {bytes: `data:image/png;base64,${shot.toString('base64')}`, colour});
}

/** The page of the example that is served; its texts are drawn. */
async function open([width, height]) {
    const prepare = async page => {
        await page.addInitScript(rememberTexts);
        await page.addInitScript(noteTexts);
    };
    const page = await openPage(browser, {viewport: {width, height}, screen: {width: 1920, height: 1080}}, prepare);
    await page.goto(address);
    await until(() => page.evaluate(() => window.texts?.length > 0), 'the texts');
    return page;
}

const problems = page => page.problems.filter(line => !line.includes('ERR_FAILED'));

const drawn = async page => JSON.stringify(await texts(page));

/** Waits until the texts no longer move. */
async function still(page) {
    let last = await drawn(page);
    await until(async () => {
        await nextFrames(page, 1);
        const before = last;
        last = await drawn(page);
        return last === before;
    }, 'the texts to come to rest', 120);
}

/** Does something, and waits until the texts are others than before. */
async function changesTexts(page, what, act) {
    await still(page);
    const before = await drawn(page);
    await act();
    await until(async () => await drawn(page) !== before, what);
}

const clickChangesTexts = (page, x, y) =>
    changesTexts(page, `a change by a click at ${x}, ${y}`, () => press(page, x, y));

const shows = async (page, wanted) => (await texts(page)).some(({text}) => text === wanted);
const sees = (page, wanted) => until(() => shows(page, wanted), `to see '${wanted}'`);
const seesNoLonger = (page, gone) => until(async () => !await shows(page, gone), `'${gone}' to go`);

/** Shown for a moment at least, since the page was opened. */
const saw = (page, wanted) =>
    until(() => page.evaluate(text => window.everDrawn.has(text), wanted), `'${wanted}' to be shown`);

/** Where the text stands that is drawn as the one behind `skipped` others like it. */
async function placeOf(page, wanted, skipped = 0) {
    await sees(page, wanted);
    const {left, width, y, size} = (await texts(page)).filter(({text}) => text === wanted)[skipped];
    return [left + width / 2, y + size / 2];
}

const pressText = async (page, wanted, skipped) => press(page, ...await placeOf(page, wanted, skipped));

/** Types into the input of that name in place of what it holds. */
const type = (page, name, text) => page.locator(`[id="${name}"]`).fill(text);

// What an example does, on the desk's screen. One without a row is opened alone.
const deeds = {
    async 'கணக்கி'(page) {
        await pressText(page, 'கூட்டு');
        await sees(page, '1');
    },
    async 'பணிகள்'(page) {
        await pressText(page, 'சேர்');
        await sees(page, 'பணியை எழுதுங்கள்');
        await type(page, 'புதிய_பணி', 'நூல் படி');
        await seesNoLonger(page, 'பணியை எழுதுங்கள்');
        await pressText(page, 'சேர்');
        await pressText(page, '☐ நூல் படி');
        await sees(page, 'முடிந்தவை 2 / 5');
        await pressText(page, 'முடிந்தவற்றை நீக்கு');
        await sees(page, 'முடிந்தவை 0 / 3');
        assert.ok(!await shows(page, '☑ நூல் படி') && await shows(page, '☐ மரம் நடு'));
    },
    async 'சந்தை'(page) {
        await pressText(page, '+');
        await sees(page, 'கூடையில் ₹ 32');
        await changesTexts(page, 'the list to scroll', () => page.mouse.wheel(0, 200));
    },
    async 'படத்தொகுப்பு'(page) {
        await press(page, 200, 300);
        await sees(page, 'கடற்கரையில் காலை');
    },
    async 'முகப்பு'(page) {
        await pressText(page, 'பட்டியலைப் பார்');
        await until(async () => await page.title() === 'இனிப்புகள்', 'the other page');
    },
    async 'பதிவு'(page) {
        const complaints = ['பெயரை எழுதுங்கள்', 'முகவரியில் @ இல்லை', 'எட்டு எழுத்தாவது வேண்டும்',
            'கிளையைத் தேர்ந்தெடுங்கள்', 'விதிகளை ஏற்றால்தான் பதியலாம்'];
        await pressText(page, 'பதிவு செய்');
        for (const complaint of complaints) await sees(page, complaint);
        await type(page, 'பெயர்', 'கமலா');
        await type(page, 'மின்னஞ்சல்', 'kamala@example.in');
        await type(page, 'கடவுச்சொல்', '12345678');
        await pressText(page, 'தேர்ந்தெடு...');
        await pressText(page, 'மதுரைக் கிளை');
        await seesNoLonger(page, 'சென்னைக் கிளை');
        await sees(page, 'மதுரைக் கிளை');
        await pressText(page, 'விதிகளை ஏற்கிறேன்');
        for (const complaint of complaints) await seesNoLonger(page, complaint);
        const dots = () => look(page, [33, 150, 243]);
        const left = await dots();
        await press(page, ...(([x, y]) => [x - 50, y - 12])(await placeOf(page, 'வீட்டில்')));
        await until(async () => (await dots()).x > left.x + 100, 'the other radio to be chosen');
        await pressText(page, 'பதிவு செய்');
        await saw(page, 'கமலா, உங்கள் பதிவு முடிந்தது!');
    },
    async 'கடை'(page) {
        await pressText(page, 'கூடைக்கு');
        await pressText(page, 'கூடைக்கு', 3);
        await sees(page, 'கூடையில் ₹ 122');
        await pressText(page, 'கூடை');
        await pressText(page, '+');
        await sees(page, 'மாம்பழம் × 2');
        await pressText(page, '−', 3);
        await sees(page, 'கூடையில் ₹ 180');
        await pressText(page, 'வாங்கு');
        await pressText(page, 'வேண்டாம்');
        await seesNoLonger(page, 'வாங்கிவிடலாமா?');
        await pressText(page, 'வாங்கு');
        await pressText(page, 'ஆம், வாங்கு');
        await sees(page, 'கூடை காலி');
        await saw(page, 'நன்றி! மாலைக்குள் வந்துசேரும்.');
        await pressText(page, 'கடை');
        await until(async () => await page.title() === 'மூலைக்கடை', 'the shop again');
    },
    async 'வினாடிவினா'(page) {
        for (const answer of ['12', '133', 'ஆல்', 'கண்ணகி']) await pressText(page, answer);
        await sees(page, 'வினா 5 / 5');
        assert.ok(await page.evaluate(() => window.everDrawn.has('இல்லை, சரியான விடை: பனை')));
        await pressText(page, 'காவிரி');
        await sees(page, '4 / 5');
        await pressText(page, 'மீண்டும் ஆடு');
        await sees(page, 'வினா 1 / 5');
    },
    async 'பட்டாம்பூச்சி'(page) {
        await pressText(page, 'ஆடலாம்');
        await sees(page, 'பிடித்தவை 0');
        const wings = await look(page, [245, 124, 0]);
        await press(page, wings.x, wings.y);
        await sees(page, 'பிடித்தவை 1');
        const left = async () => Number(/மீதி (\d+)/.exec(await drawn(page))?.[1] ?? 0);
        await until(async () => await left() < 29, 'time to pass');
    },
    async 'அளவை'(page) {
        await sees(page, 'முழு எண் ஒன்று தருக');
        await type(page, 'எழுதிய_எண்', '25');
        await sees(page, '25 °C = 77.0 °F');
        await sees(page, '25 °F = −3.9 °C');
        await pressText(page, 'நீளம்');
        await sees(page, '25 மீ = 82.0 அடி');
        await pressText(page, 'எடை');
        await sees(page, '25 பவுண்டு = 11.3 கிலோ');
        await type(page, 'எழுதிய_எண்', '2அ');
        await sees(page, 'முழு எண் ஒன்று தருக');
    },
    async 'அமைப்புகள்'(page) {
        await press(page, ...(([x, y]) => [x - 100, y + 14])(await placeOf(page, 'இரவு அமைதி')));
        await sees(page, '10 மணிமுதல் ஒலிக்காது');
        await pressText(page, 'சேமி');
        await sees(page, 'எல்லாம் சேமித்தாயிற்று');
        await saw(page, 'அமைப்புகள் சேமிக்கப்பட்டன');
        const [x, y] = await placeOf(page, 'ஒலியளவு');
        await page.mouse.move(x, y + 32);
        await page.mouse.down();
        await sees(page, 'மாற்றங்களைச் சேமியுங்கள்');
        await page.mouse.up();
        await pressText(page, 'சேமி');
        await sees(page, 'எல்லாம் சேமித்தாயிற்று');
        await pressText(page, 'தேர்ந்தெடு...');
        await pressText(page, 'தெலுங்கு');
        await seesNoLonger(page, 'தேர்ந்தெடு...');
        await sees(page, 'மாற்றங்களைச் சேமியுங்கள்');
    },
};

test('there are examples, and each deed has one', () => {
    const names = sources.map(source => basename(source, '.பொழில்'));
    assert.ok(names.length >= 11, String(names));
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
            page = await open(telephone);
        });
        after(async () => {
            await page?.context().close();
            await tidyUp(undefined, compiler, workplace);
        });

        for (const [width, height] of [telephone, tablet, desk]) {
            test(`opens ${width} pixels wide`, async () => {
                await resize(page, {width, height});
                await still(page);
                const shot = await photograph(page, `example_${name}_${width}`);
                assert.ok((await look(page, undefined, shot)).colours > 50, 'texts alone, or nothing at all');
                if (!wider.includes(name)) {
                    const cut = (await texts(page)).filter(({left, width: w}) => left < 0 || left + w > width);
                    assert.deepEqual(cut.map(({text}) => text), [], 'texts beyond the edges');
                }
                assert.deepEqual(problems(page), []);
            });
        }
        if (deeds[name]) {
            test('does what it says', async () => {
                await deeds[name](page);
                await photograph(page, `example_${name}_used`);
                assert.deepEqual(problems(page), []);
            });
        }
    });
}
