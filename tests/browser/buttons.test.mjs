// Buttons and pictures in the browser: colours, the pointer, presses, a message; images of three
// kinds, of which the animated one is an element of the page.
import assert from 'node:assert/strict';
import {mkdirSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import {PNG} from 'pngjs';
import {launch, openPage, photograph, pixel, press, until} from './support/browser.mjs';
import {nextFrames, shoot} from './support/frames.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const source = `வலைதளம் பொத்தான்கள்(
    தலைமை(
        பக்கம்: "அ"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(
            பொத்தான்(
                "கூடும்", அகலம்: 200, உயரம்: 60
                பொ_பாணி(பொபின்னணி: "#2E7D32", வளைவு: 0)
                அழுத்தினால்: வினை(): கூட்டிவிடு()
            )
            உரை(எண்ணிக்கை)
            பொத்தான்(
                "செய்தி", அகலம்: 120, உயரம்: 40
                பொ_பாணி(மேம்படுத்தப்பட்ட_நிறம்: "#C62828")
                அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "சேமித்தாயிற்று", பின்னணி: "#6A1B9A")
            )
            பொத்தான்(
                "முடக்கம்", அகலம்: 120, உயரம்: 40, செயலிழப்பு: மெய்
                அழுத்தினால்: வினை(): கூட்டிவிடு()
            )
            உரைபொத்தான்(
                உரை("படங்கள்")
                உரைபொ_பாணி(நிறம்: "#000000")
                அழுத்தினால்: வினை(): செல்க("ஆ")
            )
        )
    )
    வரையறை(
        எண்ணிக்கை = 0

        செயல் கூட்டிவிடு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
    )
)
வலைதளம் படங்கள்(
    தலைமை(
        பக்கம்: "ஆ"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(
            படம்(பாதை: "assets/red.png", அகலம்: 160, உயரம்: 80)
            படம்(பாதை: "assets/green.svg", அகலம்: 80, உயரம்: 80, வளைவு: 20)
            படம்(பாதை: "assets/blue.gif", அகலம்: 120, உயரம்: 60, வளைவு: 8)
            படம்(பாதை: "assets/missing.png")
            வட்டபடம்(படம்(பாதை: "assets/magenta.png"), அகலம்: 64, உயரம்: 64)
            பொத்தான்("திரும்பு", அகலம்: 120, உயரம்: 40, அழுத்தினால்: செல்க("அ"))
        )
    )
    வரையறை()
)
`;

const white = [255, 255, 255], red = [255, 0, 0], green = [0, 255, 0], blue = [0, 0, 255];
const cyan = [0, 255, 255], magenta = [255, 0, 255], forest = [46, 125, 50], darkForest = [26, 105, 30];
const primary = [33, 150, 243], darkPrimary = [13, 130, 223], darkCrimson = [178, 20, 20];
const purple = [106, 27, 154];

function png(colour) {
    const image = new PNG({width: 8, height: 8});
    for (let at = 0; at < image.data.length; at += 4) image.data.set([...colour, 255], at);
    return PNG.sync.write(image);
}

/** One pixel that changes its colour every 30 ms, for ever. */
function gif(one, other) {
    const frame = code => [
        0x21, 0xf9, 4, 0, 3, 0, 0, 0, 0x2c, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, code, 1, 0];
    return Buffer.from([
        ...Buffer.from('GIF89a'), 1, 0, 1, 0, 0x80, 0, 0, ...one, ...other,
        0x21, 0xff, 11, ...Buffer.from('NETSCAPE2.0'), 3, 1, 0, 0, 0, ...frame(0x44), ...frame(0x4c), 0x3b]);
}

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    mkdirSync(join(workplace.work, 'assets'));
    const asset = (name, bytes) => writeFileSync(join(workplace.work, 'assets', name), bytes);
    asset('red.png', png(red));
    asset('magenta.png', png(magenta));
    asset('blue.gif', gif(blue, cyan));
    asset('green.svg', '<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10">' +
        '<rect width="10" height="10" fill="#00ff00"/></svg>');
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
    page = await openPage(browser, undefined, async page => {
        await page.addInitScript(holdTime);
        await page.addInitScript(noteTexts);
    });
    await page.goto(address);
    await placeOf('கூடும்');
    await moveAway();
});

after(() => tidyUp(browser, compiler, workplace));

/** Runs in the page: lets a test hold the clock. */
function holdTime() {
    const now = performance.now.bind(performance);
    performance.now = () => window.heldTime ?? now();
}

/** Runs in the page: keeps where each text was drawn last, and how large. */
function noteTexts() {
    window.texts = {};
    const {fillText} = CanvasRenderingContext2D.prototype;
    CanvasRenderingContext2D.prototype.fillText = function(text, x, y) {
        window.texts[text] = {x, y, size: parseFloat(/([\d.]+)px/.exec(this.font)[1])};
        return fillText.apply(this, arguments);
    };
}

const moveAway = () => page.mouse.move(1000, 650);
const placeOf = text => until(() => page.evaluate(text => window.texts[text], text), `the text ${text}`);

/** The middle of the button with that label: its text lies there, less half its size and 2 pixels. */
async function buttonOf(label) {
    const {x, y, size} = await placeOf(label);
    return {x, y: y + size / 2 - 2};
}

const shows = (place, colour) => until(async () =>
    (await pixel(page, place.x, place.y)).join() === colour.join(), `${colour} at ${place.x}, ${place.y}`);
const cursor = () => page.evaluate(() => document.body.style.cursor);

/** The rectangle around all that has this colour. */
async function boundsOf([red, green, blue]) {
    const {data, width} = PNG.sync.read(await shoot(page));
    const box = {left: Infinity, top: Infinity, right: -1, bottom: -1};
    for (let at = 0; at < data.length; at += 4) {
        if (data[at] !== red || data[at + 1] !== green || data[at + 2] !== blue) continue;
        const x = at / 4 % width, y = Math.floor(at / 4 / width);
        box.left = Math.min(box.left, x);
        box.right = Math.max(box.right, x);
        box.top = Math.min(box.top, y);
        box.bottom = y;
    }
    return box.right < 0 ? null :
        {x: box.left, y: box.top, width: box.right - box.left + 1, height: box.bottom - box.top + 1};
}
const appears = colour => until(() => boundsOf(colour), `anything in ${colour}`);

test('a button has its size and its colour, and lies on a shadow', async () => {
    const middle = await buttonOf('கூடும்');
    await shows({x: middle.x - 95, y: middle.y}, forest);
    const {width, height} = await boundsOf(forest);
    assert.deepEqual([width, height], [200, 60]);
    const below = await pixel(page, middle.x, middle.y + 31);
    assert.ok(below[0] > 150 && below[0] < 220, `a shadow at ${below}`);
    assert.deepEqual(await pixel(page, middle.x, middle.y + 36), white);
    await photograph(page, 'buttons');
});

test('under the pointer it is darker and the cursor a hand', async () => {
    const middle = await buttonOf('கூடும்');
    assert.equal(await cursor(), 'default');
    await page.mouse.move(middle.x, middle.y + 20);
    await shows({x: middle.x - 95, y: middle.y}, darkForest);
    assert.equal(await cursor(), 'pointer');
    await moveAway();
    await shows({x: middle.x - 95, y: middle.y}, forest);
    await until(async () => await cursor() === 'default', 'the arrow');
});

test('a click runs its handler once, and what it changed shows', async () => {
    const middle = await buttonOf('கூடும்');
    for (const value of ['1', '2']) {
        await press(page, middle.x, middle.y);
        await placeOf(value);
    }
    await nextFrames(page);
    assert.equal(await page.evaluate(() => window.texts['3']), undefined);
});

test('a disabled button darkens, shows no hand and takes no click', async () => {
    const middle = await buttonOf('முடக்கம்');
    await shows({x: middle.x - 55, y: middle.y}, primary);
    await press(page, middle.x, middle.y);
    await shows({x: middle.x - 55, y: middle.y}, darkPrimary);
    assert.equal(await cursor(), 'default');
    assert.equal(await page.evaluate(() => window.texts['3']), undefined);
});

test('a hover colour is darkened too, and a message is shown', async () => {
    const middle = await buttonOf('செய்தி');
    await page.mouse.move(middle.x, middle.y);
    await shows({x: middle.x - 55, y: middle.y}, darkCrimson);
    // It leaves after 2.5 s, which may be less than a photograph takes: the clock is held.
    await page.evaluate(() => { window.heldTime = performance.now(); });
    await press(page, middle.x, middle.y);
    await placeOf('சேமித்தாயிற்று');
    const bar = await appears(purple);
    assert.ok(bar.width >= 200, `a bar ${bar.width} wide`);
    await photograph(page, 'message');
    await page.evaluate(() => { delete window.heldTime; });
    await moveAway();
    await until(async () => await boundsOf(purple) === null, 'the message to leave');
});

test('a text button takes its hover colour and goes to another page', async () => {
    const middle = await buttonOf('படங்கள்');
    await page.mouse.move(middle.x, middle.y);
    await until(async () => await cursor() === 'pointer', 'the hand');
    await press(page, middle.x, middle.y);
    await placeOf('திரும்பு');
});

test('images draw in their size, and a picture in its circle', async () => {
    const {width, height} = await appears(red);
    assert.deepEqual([width, height], [160, 80]);
    const vector = await appears(green);
    assert.deepEqual([vector.width, vector.height], [80, 80]);
    assert.deepEqual(await pixel(page, vector.x + 1, vector.y + 1), white, 'a round corner');
    const circle = await appears(magenta);
    assert.ok(Math.abs(circle.width - 64) <= 2 && Math.abs(circle.height - 64) <= 2);
    assert.deepEqual(await pixel(page, circle.x + 3, circle.y + 3), white);
    await photograph(page, 'images');
});

const gifImage = () => page.evaluate(() => {
    const image = document.querySelector('img[id^="gif_"]');
    if (!image) return null;
    const {x, y, width, height} = image.getBoundingClientRect();
    const {display, borderRadius, zIndex, pointerEvents, objectFit} = image.style;
    return {x, y, width, height, display, borderRadius, zIndex, pointerEvents, objectFit,
        isLoaded: image.complete && image.naturalWidth === 1, source: image.getAttribute('src'),
        raw: image.dataset.rawSrc, isHovered: image.dataset.isHoveredState};
});

/** One of its two colours is seen: the browser shows them in turn. */
const plays = ({x, y}) => until(async () => {
    const colour = (await pixel(page, x + 60, y + 30)).join();
    return [blue, cyan].some(each => each.join() === colour);
}, 'the animated image');

test('an animated image is an element that plays over the canvas', async () => {
    await moveAway();
    const image = await until(async () => {
        const found = await gifImage();
        return found?.isLoaded && found;
    }, 'the image');
    assert.deepEqual([image.width, image.height], [120, 60]);
    assert.deepEqual([image.display, image.borderRadius, image.zIndex, image.pointerEvents, image.objectFit],
        ['block', '8px', '1500', 'none', 'cover']);
    assert.match(image.source, /^blob:/);
    await plays(image);
});

test('it starts over when the pointer comes near, and stays seen', async () => {
    const {x, y, width, raw} = await gifImage();
    await page.mouse.move(x + width + 9, y - 9);
    await until(async () => (await gifImage()).isHovered === 'true', 'the hovered state');
    await photograph(page, 'animated_image_hovered');
    await plays({x, y});
    await page.mouse.move(x + width + 11, y - 9);
    await until(async () => (await gifImage()).isHovered === 'false', 'the other state');
    assert.equal((await gifImage()).source, raw);
    await plays({x, y});
});

test('it is hidden when its page is left, and back with it', async () => {
    const back = await buttonOf('திரும்பு');
    await press(page, back.x, back.y);
    await until(async () => (await gifImage()).display === 'none', 'the hidden image');
    for (const colour of [blue, cyan]) assert.equal(await boundsOf(colour), null);
    const forward = await buttonOf('படங்கள்');
    await press(page, forward.x, forward.y);
    await until(async () => (await gifImage()).display === 'block', 'the image again');
});

test('nothing went wrong in the page', () => {
    // The web font isn't reached, and a Blob has no other address than its own.
    const expected = /ERR_FAILED|ERR_FILE_NOT_FOUND/;
    assert.deepEqual(page.problems.filter(line => !expected.test(line)), []);
});
