// Boxes and cards in the browser: where they and their children lie, what a pointer and time do to
// them, and what is cut off at their edges; on a desk and on a telephone's width, coarse and fine.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {PNG} from 'pngjs';
import {launch, openPage, photographAtRest, press, until} from './support/browser.mjs';
import {shoot} from './support/frames.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

/** A page over the whole window, each of whose layers lies over all of it. */
const application = (name, layers) => `வலைதளம் செயலி_${name}(
    தலைமை(
        பக்கம்: "${name}"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        பெட்டி(அகலம்: 100%, உயரம்: 100%,
${layers.map(layer => `            ${layer},\n`).join('')}        )
    )
    வரையறை(
        எண்ணிக்கை = 0
    )
)
`;

const layer = (place, ...widgets) =>
    `பெட்டி(சீரமைப்பு: ${place})(அகலம்: 100%, உயரம்: 100%, ${widgets.join(', ')})`;
const box = (w, h, style, ...rest) =>
    `பெட்டி(அகலம்: ${w}, உயரம்: ${h}, பெட்டி_பாணி(${style})${rest.map(each => `, ${each}`).join('')})`;
/** A grey square at the left edge that goes to another page. */
const wayTo = name => layer('மைய_இடது', box(30, 30, 'பெட்டிபின்னணி: "#808080"', `அழுத்தினால்: வினை(): செல்க("${name}")`));

const source = application('அ', [
    layer('மேல்_இடது', box(60, 40, 'பெட்டிபின்னணி: "#FF0000"')),
    layer('மேல்_வலது', box(60, 40, 'பெட்டிபின்னணி: "#00FF00"')),
    layer('கீழ்_இடது', box(60, 40, 'பெட்டிபின்னணி: "#0000FF"')),
    layer('கீழ்_வலது', box(60, 40, 'பெட்டிபின்னணி: "#FF00FF"')),
    layer('மையம்', box(200, 100, 'பெட்டிபின்னணி: "#2196F3", வளைவு: 30, நிழல்: 2')),
    layer('மையம்', 'உரை("நடுவில்")'),
    wayTo('ஆ'),
]) + application('ஆ', [
    layer('மேல்_மையம்', box(100, 60, 'பெட்டிபின்னணி: "#FF0000"',
        'அசைவூட்டம்(காலம்: 200, நிலைமை: "சுட்டி_மேல்", இலக்கு(உயரம்: 120, பெட்டிபின்னணி: "#00FF00"))')),
    layer('மையம்', box(100, 60, 'பெட்டிபின்னணி: "#FF0000"',
        'அசைவூட்டம்(காலம்: 1000, நிலைமை: தானாக, இலக்கு(உயரம்: 120, பெட்டிபின்னணி: "#0000FF"))')),
    layer('கீழ்_மையம்', box(100, 60, 'பெட்டிபின்னணி: "#FF0000"', 'style_மேம்படுத்தப்பட்ட_நிறம்: "#00FF00"')),
    wayTo('இ'),
]) + application('இ', [
    layer('மேல்_மையம்', box(100, 60, 'பெட்டிபின்னணி: "#FF0000"', 'அழுத்தினால்: வினை(): எண்ணிக்கை = எண்ணிக்கை கூட்டு 1')),
    layer('மையம்', 'அட்டை(அட்டை_பாணி(பின்னணி: "#FFFF00", வளைவு: 0), பெட்டி(பெட்டி_பாணி(பெட்டிபின்னணி: "#0000FF")))'),
    layer('கீழ்_மையம்', 'உரை(எண்ணிக்கை)'),
    wayTo('ஆ'),
]);

const red = [255, 0, 0], green = [0, 255, 0], blue = [0, 0, 255], pink = [255, 0, 255];
const white = [255, 255, 255], yellow = [255, 255, 0], sky = [33, 150, 243];
const same = (a, b) => a.join() === b.join();

let workplace, compiler, browser;

before(async () => {
    workplace = makeWorkplace();
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
});

after(() => tidyUp(browser, compiler, workplace));

/** Keeps the texts of the last frame as `window.texts`: each with its place. */
function keepTexts() {
    const draw = CanvasRenderingContext2D.prototype.fillText;
    const clear = CanvasRenderingContext2D.prototype.clearRect;
    let frame = [];
    CanvasRenderingContext2D.prototype.clearRect = function(...rest) {
        window.texts = frame;
        frame = [];
        return clear.apply(this, rest);
    };
    CanvasRenderingContext2D.prototype.fillText = function(text, x, y) {
        frame.push({text, x, y, width: this.measureText(text).width});
        return draw.call(this, text, x, y);
    };
}

/** A colour that is none of `colours`. */
const not = (...colours) => seen => colours.every(colour => !same(seen, colour));
/** A shade between white and the darkest that a shadow casts. */
const shade = ([r, g, b]) => r === g && g === b && r > 200 && r < 250;

for (const [width, height, deviceScaleFactor] of [[640, 400, 1], [320, 400, 2]]) {
    const name = `${width} by ${height} at ${deviceScaleFactor}`;
    const x = width / 2, y = height / 2;
    let page;

    /** Photographs the page whenever it rests, until each of `places`, [x, y, colour], shows its colour. */
    async function sees(what, places, seconds = 60) {
        let wrong = ['no photograph'];
        const looked = until(async () => {
            const picture = PNG.sync.read(await photographAtRest(page, `boxes_${what}_${width}_${deviceScaleFactor}`));
            wrong = places.map(([left, top, colour]) => {
                const at = 4 * (Math.round(top * deviceScaleFactor) * picture.width + Math.round(left * deviceScaleFactor));
                const seen = [...picture.data.subarray(at, at + 3)];
                const isRight = colour instanceof Function ? colour(seen) : same(seen, colour);
                return isRight ? '' : `${seen} at ${left}, ${top}, not ${colour}`;
            }).filter(Boolean);
            return wrong.length === 0;
        }, what, seconds);
        await looked.catch(error => assert.fail(`${error.message}: ${wrong.join('; ')}`));
    }
    async function goOn() {
        await press(page, 15, y);
        await page.mouse.move(5, 150);
    }
    const texts = () => page.evaluate(() => window.texts);

    test(`boxes lie in each corner and in the middle, round and with a shadow, ${name}`, async () => {
        page = await openPage(browser,
            {viewport: {width, height}, screen: {width: 1920, height: 1080}, deviceScaleFactor},
            opened => opened.addInitScript(keepTexts));
        page.setDefaultTimeout(120_000);  // a large photograph takes long on a busy machine
        await page.goto(address);
        const right = width - 60, low = height - 40;
        await sees('corners', [
            [0, 0, red], [59, 39, red], [61, 20, white], [30, 41, white],
            [right, 0, green], [width - 1, 39, green], [right - 2, 20, white], [right + 30, 41, white],
            [0, low, blue], [59, height - 1, blue], [61, low + 20, white], [30, low - 2, white],
            [right, low, pink], [width - 1, height - 1, pink], [right - 2, low + 20, white], [right + 30, low - 2, white],
            [x - 60, y - 48, sky], [x - 98, y, sky], [x - 98, y - 48, not(sky)], [x - 88, y - 38, sky],
            [x, y + 53, shade], [x, y + 90, white],
        ]);
    });

    test(`a text is put by its own width, ${name}`, async () => {
        const [text] = await texts();
        assert.equal(text.text, 'நடுவில்');
        // The window scales the drawn text and not the measured one.
        const measured = await page.evaluate(() => {
            const context = document.createElement('canvas').getContext('2d');
            context.font = 'normal 16px "Noto Sans Tamil", Arial, sans-serif';
            return context.measureText('நடுவில்').width;
        });
        assert.ok(Math.abs(text.x - (width - measured) / 2) < 0.6, `${text.x}, ${measured}`);
        assert.ok(Math.abs(text.y - ((height - 16) / 2 + 2)) < 0.6, `${text.y}`);
    });

    test(`an automatic animation runs to its end, ${name}`, async () => {
        await goOn();
        await sees('moved', [[x, y, blue], [x, y + 85, blue], [x, y + 92, white], [x, height - 30, red]],
            240);
    });

    test(`a press runs its handler once, ${name}`, async () => {
        const count = async () => (await texts()).at(-1)?.text;
        await goOn();
        await until(async () => await count() === '0', 'the count');
        await press(page, x, 30);
        await until(async () => await count() === '1', 'the press');
        await press(page, x + 52, 30);
        await page.mouse.move(x + 10, 30);
        await until(() => page.evaluate(() => document.body.style.cursor === 'pointer'), 'the hand');
        assert.equal(await count(), '1', 'beside the box nothing is pressed, and nothing twice');
    });

    test(`a card cuts its child off at its edges, ${name}`, async () => {
        // It is put by its measure, its child's and 20 more, and drawn 350 by 200.
        const left = x - 60, top = y - 60, right = Math.min(left + 350, width) - 1;
        const beside = left + 353 < width ? [[left + 353, top + 100, not(blue, yellow)]] : [];
        await sees('card', [
            [left + 1, top + 1, yellow], [left + 13, top + 100, yellow], [left + 100, top + 13, yellow],
            [left + 16, top + 16, blue], [right, top + 199, blue], [left + 100, top + 202, not(blue, yellow)], ...beside,
        ]);
    });

    test(`an animation at its end doesn't begin again when its page returns, ${name}`, async () => {
        await goOn();
        await until(async () => (await texts()).length === 0, 'the other page');
        const picture = PNG.sync.read(await shoot(page));
        const at = 4 * Math.round(deviceScaleFactor) * (Math.round(y + 85) * picture.width + x);
        assert.deepEqual([...picture.data.subarray(at, at + 3)], blue);
    });

    test(`a pointer moves and colours boxes, and when it leaves they go back, ${name}`, async () => {
        await page.mouse.move(x, 30);
        await sees('hovered', [[x, 30, green], [x, 118, green], [x, 122, white], [x, height - 30, red]]);
        await page.mouse.move(x, height - 30);
        await sees('left', [[x, 30, red], [x, 62, white], [x, height - 30, green]]);
        await until(() => page.evaluate(() => document.body.style.cursor === 'pointer'), 'the hand');
        await page.mouse.move(5, 150);
        await sees('away', [[x, height - 30, red]]);
        assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
        await page.context().close();
    });
}
