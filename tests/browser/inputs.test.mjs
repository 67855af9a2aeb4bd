// What users type, in the browser: key by key and through an input method, with a mouse and by touch.
// The elements of the page follow their frames, and the program follows what they hold.
import assert from 'node:assert/strict';
import {after, before, describe, test} from 'node:test';
import {launch, openPage, photograph, pixel, press, until} from './support/browser.mjs';
import {nextFrames} from './support/frames.mjs';
import {inputs} from './support/inputs.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';
import {noteTexts, texts} from './support/widget_screen.mjs';

const source = `வலைதளம் படிவம்(
    தலைமை(
        பக்கம்: "அ"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(
            உரைபெட்டி(அடையாளம்: "ஊர்பெயர்", குறிப்பு: "உங்கள் ஊர்", அகலம்: 600)
            உரைபெட்டி(அடையாளம்: "நாடு", காட்சி_பெயர்: "நாடு_தெரியும்")
            உரைபெட்டி(அடையாளம்: "கதை", பலவரி: மெய், உயரம்: 60)
            தேடல்_பட்டை()
            கடவுமறை()
            கிடைவரிசை(
                பொத்தான்("சரிபார்", அகலம்: 100, உயரம்: 40, அழுத்தினால்: வினை(): சரிபார்த்துவிடு())
                பொத்தான்("மறை", அகலம்: 100, உயரம்: 40, அழுத்தினால்: வினை(): மறைத்துவிடு())
                பொத்தான்("அடுத்து", அகலம்: 100, உயரம்: 40, அழுத்தினால்: செல்க("ஆ"))
                பொத்தான்("காட்டு", அகலம்: 100, உயரம்: 40, அழுத்தினால்: வினை(): காட்டிவிடு())
            )
            உரை(ஊர்பெயர்.உரைதரவு)
            உரை(ஊர்பெயர்)
        )
    )
    வரையறை(
        ஊர்பெயர் = "நிரலுடையது"

        செயல் சரிபார்த்துவிடு():
            எனில் ஊர்பெயர்.வெறுமை:
                ஊர்பெயர்.பிழைசெய்தி("ஊர் தேவை")

        செயல் மறைத்துவிடு():
            நாடு_தெரியும் = பொய்

        செயல் காட்டிவிடு():
            நாடு_தெரியும் = மெய்
    )
)
வலைதளம் மறுபக்கம்(
    தலைமை(
        பக்கம்: "ஆ"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(
            கிடைவரிசை(
                பொத்தான்("திரும்பு", அகலம்: 100, உயரம்: 40, அழுத்தினால்: செல்க("அ"))
                பொத்தான்("பட்டியல்", அகலம்: 100, உயரம்: 40, அழுத்தினால்: செல்க("இ"))
            )
            உரைபெட்டி(அடையாளம்: "ஊர்பெயர்")
            உரைபெட்டி(அடையாளம்: "amount")
            உரைபெட்டி(அடையாளம்: "")
            உரைபெட்டி(அடையாளம்: "நாடு", செயலிழப்பு: மெய்)
        )
    )
    வரையறை()
)
வலைதளம் நீளமானது(
    தலைமை(
        பக்கம்: "இ"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        பட்டியல்_காட்சி(
            பொத்தான்("திரும்பு", அகலம்: 100, உயரம்: 40, அழுத்தினால்: செல்க("அ"))
            கடவுமறை()
            உரைபெட்டி(அடையாளம்: "கீழே")
            இவெ(உயரம்: 900)
        )
    )
    வரையறை()
)
`;

// Each frame tells what the program has of each input.
const noted = `
EM_ASM({ window.values = ({}); window.faults = ({}); });
for (const auto& each : g_inputValues) {
    EM_ASM({ window.values[UTF8ToString($0).replace(/[0-9]+$/, '#')] = UTF8ToString($1); },
           each.first.c_str(), each.second.c_str());
}
for (const auto& each : g_inputErrors) {
    EM_ASM({ window.faults[UTF8ToString($0)] = UTF8ToString($1); }, each.first.c_str(), each.second.c_str());
}
`;

const small = {viewport: {width: 400, height: 400}, screen: {width: 1920, height: 1080}};
const telephone = {
    viewport: {width: 390, height: 844}, screen: {width: 390, height: 844},
    deviceScaleFactor: 2, isMobile: true, hasTouch: true,
};

// The column begins at the page's corner; each place is inside its widget.
const town = {x: 100, y: 25}, edge = {x: 100, y: 49}, country = {x: 100, y: 85}, story = {x: 100, y: 140};
const search = {x: 100, y: 205}, cross = {x: 325, y: 205}, word = {x: 100, y: 260};
const check = {x: 50, y: 310}, hide = {x: 150, y: 310}, next = {x: 250, y: 310}, show = {x: 350, y: 310};
const back = {x: 50, y: 20}, toList = {x: 150, y: 20}, backFromList = {x: 200, y: 20};
const white = [255, 255, 255], warning = [244, 67, 54], grey = [150, 150, 150], plate = [240, 244, 250];

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    workplace.drawByHand(noted);
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
});

after(() => tidyUp(browser, compiler, workplace));

/** Runs in the page: keeps what was pasted. */
function notePastes() {
    window.pasted = [];
    window.addEventListener('paste', event => window.pasted.push(event.clipboardData.getData('text')), true);
}

async function open(options) {
    await page?.context().close();
    page = await openPage(browser, options, async page => {
        for (const script of [noteTexts, notePastes]) await page.addInitScript(script);
    });
    page.keys = await page.context().newCDPSession(page);
    await page.goto(address);
    await until(() => page.evaluate(() => window.frames > 1), 'the first frames');
}

const seen = key => page.evaluate(key => window[key], key);
const isDrawn = async text => (await texts(page)).some(drawn => drawn.text === text);
const draws = text => until(() => isDrawn(text), `the text '${text}'`);
const shows = ({x, y}, colour) => until(async () =>
    (await pixel(page, x, y)).join() === colour.join(), `${colour} at ${x}, ${y}`);

/** The program has that of an input, and so has its element. */
async function holds(id, value) {
    const element = id => Array.from(document.querySelectorAll('.pozhil-input'))
        .find(input => input.id.replace(/\d+$/, '#') === id)?.value;
    await until(async () => (await seen('values'))[id] === value && await page.evaluate(element, id) === value,
        `'${value}' in ${id}`).catch(async error => {
        throw new Error(`${error.message}; the program has '${(await seen('values'))[id]}', ` +
            `the page '${await page.evaluate(element, id)}'`);
    });
}

/** Each character by a key of its own, as from a keyboard that has it. */
async function typeKeys(text) {
    for (const key of text) {
        await page.keys.send('Input.dispatchKeyEvent', {type: 'keyDown', key, text: key, unmodifiedText: key});
        await page.keys.send('Input.dispatchKeyEvent', {type: 'keyUp', key});
    }
}

/** What an input method shows while it composes, and then what it settles on. */
async function compose(steps, settled, follow) {
    for (const text of steps) {
        await page.keys.send('Input.imeSetComposition', {text, selectionStart: text.length, selectionEnd: text.length});
        await follow(text);
    }
    await page.keys.send('Input.insertText', {text: settled});
    await follow(settled);
}

/** Scrolls to there a page that is larger than its window, as a keyboard on the screen makes it. */
async function scrollPage(x, y) {
    await page.evaluate(([x, y]) => {
        document.body.style.width = document.body.style.height = x + y > 0 ? '1000px' : '';
        window.scrollTo(x, y);
    }, [x, y]);
    await nextFrames(page);
}

const focused = () => page.evaluate(() => document.activeElement.id.replace(/\d+$/, '#'));
const elementOf = async id => (await inputs(page)).find(input => input.id === id);
const isShown = (id, shown) => until(async () => (await elementOf(id)).isShown === shown,
    `${id} to be ${shown ? 'shown' : 'hidden'}`);
const onlyOwn = () => assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);

describe('at a desk', () => {
    before(() => open(small));

    test('an error shows, and the first key clears it', async () => {
        const calm = await pixel(page, edge.x, edge.y);
        await press(page, check.x, check.y);
        await draws('ஊர் தேவை');
        await shows(edge, warning);
        await photograph(page, 'input_with_error');
        await press(page, town.x, town.y);
        assert.equal(await focused(), 'ஊர்பெயர்');
        await typeKeys('ம');
        await until(async () => !await isDrawn('ஊர் தேவை'), 'the error to leave');
        assert.equal((await seen('faults'))['ஊர்பெயர்'], '');
        await shows(edge, calm);
    });

    test('Tamil key by key reaches the program, and its own variable stays', async () => {
        await typeKeys('துரை');
        await holds('ஊர்பெயர்', 'மதுரை');
        await draws('மதுரை');
        await draws('நிரலுடையது');
        await photograph(page, 'input_in_tamil');
    });

    test('letters, spaces, signs and pictures are typed, erased and put in the middle', async () => {
        await page.keyboard.type(' Kovai 2');
        await page.keyboard.insertText('🌾');
        await holds('ஊர்பெயர்', 'மதுரை Kovai 2🌾');
        await page.keyboard.press('Backspace');
        await holds('ஊர்பெயர்', 'மதுரை Kovai 2');
        for (let i = 0; i < 2; i++) await page.keyboard.press('ArrowLeft');
        await typeKeys('ஊ');
        await holds('ஊர்பெயர்', 'மதுரை Kovaiஊ 2');
        await page.keyboard.press('Home');
        await page.keyboard.press('Delete');
        await holds('ஊர்பெயர்', 'துரை Kovaiஊ 2');
        await page.keyboard.press('Control+a');
        await page.keyboard.press('Backspace');
        await holds('ஊர்பெயர்', '');
    });

    test('what an input method composes arrives as it grows, and clears an error', async () => {
        await press(page, check.x, check.y);
        await draws('ஊர் தேவை');
        await press(page, town.x, town.y);
        await compose(['த', 'தமி', 'தமிழ'], 'தமிழ்', text => holds('ஊர்பெயர்', text));
        assert.equal((await seen('faults'))['ஊர்பெயர்'], '');
        await compose(['ந'], 'நாடு', text => holds('ஊர்பெயர்', 'தமிழ்' + text));
    });

    test('Tab moves on, and what two boxes hold does not mix', async () => {
        await page.keyboard.press('Tab');
        assert.equal(await focused(), 'நாடு');
        await typeKeys('ஈழம்');
        await holds('நாடு', 'ஈழம்');
        await holds('ஊர்பெயர்', 'தமிழ்நாடு');
        await page.keyboard.press('Shift+Tab');
        assert.equal(await focused(), 'ஊர்பெயர்');
    });

    test('Enter begins a line where there are several, and there alone', async () => {
        await page.keyboard.press('Enter');
        await press(page, story.x, story.y);
        await typeKeys('ஒன்று');
        await page.keyboard.press('Enter');
        await typeKeys('இரண்டு');
        await holds('கதை', 'ஒன்று\nஇரண்டு');
        await holds('ஊர்பெயர்', 'தமிழ்நாடு');
    });

    test('pasting changes nothing', async () => {
        for (const [place, id, value] of [[town, 'ஊர்பெயர்', 'தமிழ்நாடு'], [story, 'கதை', 'ஒன்று\nஇரண்டு']]) {
            await press(page, place.x, place.y);
            for (const key of ['Control+a', 'Control+c', 'End', 'Control+v']) await page.keyboard.press(key);
            await until(async () => (await seen('pasted')).at(-1) === value, 'the paste');
            await nextFrames(page);
            await holds(id, value);
        }
    });

    test('a search bar has a cross while it holds something, which empties it', async () => {
        await shows(cross, plate);
        await press(page, search.x, search.y);
        await typeKeys('மதுரை');
        await holds('search_#', 'மதுரை');
        await shows(cross, grey);
        await photograph(page, 'search_bar');
        await press(page, cross.x + 16, cross.y);
        await holds('search_#', 'மதுரை');
        await page.mouse.move(cross.x + 14, cross.y);
        await until(() => page.evaluate(() => document.body.style.cursor === 'pointer'), 'the hand');
        await press(page, cross.x + 14, cross.y);
        await holds('search_#', '');
        await shows(cross, plate);
        await press(page, search.x, search.y);
        await typeKeys('அ');
        await holds('search_#', 'அ');
    });

    test('a password box shows what is typed, and a blue border while it is written in', async () => {
        const look = () => page.evaluate(() => {
            const {type, style} = document.querySelector('[id^=input_]');
            return [type, style.borderColor, style.boxShadow];
        });
        await press(page, word.x, word.y);
        assert.deepEqual(await look(), ['text', 'rgb(33, 150, 243)', 'rgba(33, 150, 243, 0.2) 0px 0px 8px']);
        await typeKeys('சொல்1');
        await holds('input_#', 'சொல்1');
        await photograph(page, 'password_box');
        await press(page, town.x, town.y);
        assert.deepEqual(await look(), ['text', 'rgb(224, 224, 224)', 'none']);
    });

    test('the elements follow their frames when the window changes and the page is scrolled', async () => {
        const {width, x, y} = await elementOf('ஊர்பெயர்');
        assert.deepEqual([width, x, y], [400 - 40 - 30, 15, 0]);
        await page.setViewportSize({width: 500, height: 400});
        await until(async () => (await elementOf('ஊர்பெயர்')).width === 500 - 40 - 30, 'the wider box');
        await page.setViewportSize(small.viewport);
        await scrollPage(20, 30);
        try {
            const scrolled = await elementOf('ஊர்பெயர்');
            assert.deepEqual([scrolled.x, scrolled.y], [15 - 20, -30]);
            await press(page, country.x - 20, country.y - 30);
            assert.equal(await focused(), 'நாடு');
            assert.deepEqual(await page.evaluate(() => [window.mouseX, window.mouseY]), [country.x, country.y]);
        } finally {
            await scrollPage(0, 0);
        }
        const {x: left, y: top} = await elementOf('ஊர்பெயர்');
        assert.deepEqual([left, top], [15, 0]);
    });

    test('a password box goes unseen where it does not fit into the window', async () => {
        const look = () => page.evaluate(() => {
            const {opacity, pointerEvents} = document.querySelector('[id^=input_]').style;
            return {opacity, events: pointerEvents};
        });
        await page.setViewportSize({width: 400, height: 289});
        await until(async () => (await look()).opacity === '0', 'it to go');
        assert.deepEqual(await look(), {opacity: '0', events: 'none'});
        await page.setViewportSize({width: 400, height: 290});
        await until(async () => (await look()).opacity === '1', 'it to come back');
        assert.deepEqual(await look(), {opacity: '1', events: 'auto'});
        await page.setViewportSize(small.viewport);
        await nextFrames(page);
    });

    test('another page hides its inputs and keeps their texts; one of both pages moves', async () => {
        await press(page, next.x, next.y);
        for (const id of ['கதை', 'search_#', 'input_#']) await isShown(id, false);
        const shared = await elementOf('ஊர்பெயர்');
        assert.deepEqual([shared.isShown, shared.y, shared.width], [true, 40, 290]);
        await press(page, 100, 65);
        await page.keyboard.press('End');
        await typeKeys('!');
        await press(page, back.x, back.y);
        for (const id of ['கதை', 'search_#', 'input_#']) await isShown(id, true);
        await holds('ஊர்பெயர்', 'தமிழ்நாடு!');
        await holds('நாடு', 'ஈழம்');
        await holds('கதை', 'ஒன்று\nஇரண்டு');
    });

    test('a disabled box shows what its name holds and takes nothing, where another of that name does', async () => {
        await press(page, next.x, next.y);
        await isShown('கதை', false);
        await press(page, 100, 245);
        assert.equal(await focused(), 'canvas');
        assert.deepEqual(await page.evaluate(() => [window.mouseX, window.mouseY]), [100, 245]);
        await press(page, 100, 65);
        await page.keyboard.press('Tab');
        assert.equal(await focused(), 'amount');
        await holds('நாடு', 'ஈழம்');
        await press(page, back.x, back.y);
        await isShown('கதை', true);
        await press(page, country.x, country.y);
        await typeKeys('!');
        await holds('நாடு', 'ஈழம்!');
        await page.keyboard.press('Backspace');
        await holds('நாடு', 'ஈழம்');
    });

    test('a box may have the name of an element that the page has already, or an empty one', async () => {
        await press(page, next.x, next.y);
        await isShown('கதை', false);
        for (const [y, id] of [[125, 'amount'], [185, 'text_#']]) {
            await press(page, 100, y);
            await typeKeys('அ');
            await holds(id, 'அ');
        }
        assert.equal(await page.evaluate(() => document.getElementById('amount').tagName), 'P');
        assert.equal((await inputs(page)).length, 7);
        await press(page, back.x, back.y);
        await isShown('கதை', true);
    });

    test('the elements scroll with a list, and a password box goes at the upper edge', async () => {
        await press(page, next.x, next.y);
        await isShown('கதை', false);
        await press(page, toList.x, toList.y);
        await until(() => elementOf('கீழே'), 'the list');
        const {x, y} = await elementOf('கீழே');
        const opacity = () => page.evaluate(() =>
            Array.from(document.querySelectorAll('[id^=input_]')).at(-1).style.opacity);
        assert.equal(await opacity(), '1');
        await page.mouse.wheel(0, 50);
        await until(async () => (await elementOf('கீழே')).y === y - 50, 'the box above');
        assert.equal((await elementOf('கீழே')).x, x);
        assert.equal(await opacity(), '0');
        await page.mouse.wheel(0, -50);
        await until(async () => (await elementOf('கீழே')).y === y, 'the box below');
        assert.equal(await opacity(), '1');
        await press(page, backFromList.x, backFromList.y);
        await isShown('கதை', true);
    });

    test('a box that the program hides loses its element, and has its text when it is back', async () => {
        await press(page, hide.x, hide.y);
        await isShown('நாடு', false);
        await shows({x: 1, y: 85}, white);
        await press(page, country.x, country.y);
        await typeKeys('அ');
        await holds('நாடு', 'ஈழம்');
        await press(page, show.x, show.y);
        await isShown('நாடு', true);
        await page.mouse.click(country.x, country.y);
        await page.keyboard.press('End');
        await typeKeys('!');
        await holds('நாடு', 'ஈழம்!');
        onlyOwn();
    });
});

describe('on a telephone', () => {
    before(() => open(telephone));

    const tap = async ({x, y}) => {
        await page.touchscreen.tap(x, y);
        await until(() => page.evaluate(() => !window.mouseClicked), 'a frame to take the tap');
    };

    test('a tap begins to write, and what an input method composes arrives', async () => {
        await tap(check);
        await draws('ஊர் தேவை');
        await tap(town);
        await until(async () => await focused() === 'ஊர்பெயர்', 'the focus');
        await compose(['க', 'கோ'], 'கோவை', text => holds('ஊர்பெயர்', text));
        assert.ok(!await isDrawn('ஊர் தேவை'));
        await draws('கோவை');
        const {x, y, width} = await elementOf('ஊர்பெயர்');
        assert.deepEqual([x, y, width], [15, 0, 390 - 40 - 30]);
        await tap(country);
        await compose(['ஈ'], 'ஈழம்', text => holds('நாடு', text));
        await holds('ஊர்பெயர்', 'கோவை');
        await photograph(page, 'inputs_on_a_telephone');
    });

    test('a tap on the cross empties a search bar', async () => {
        await tap(search);
        await compose(['மீ'], 'மீன்', text => holds('search_#', text));
        await tap(cross);
        await holds('search_#', '');
    });

    test('turned, the boxes are where they are drawn, with what they hold', async () => {
        await page.setViewportSize({width: 844, height: 390});
        await until(async () => (await elementOf('ஊர்பெயர்')).width === 600 - 30, 'the wide box');
        await tap({x: 500, y: 25});
        await until(async () => await focused() === 'ஊர்பெயர்', 'the focus');
        await page.keyboard.press('End');
        await compose(['ந'], 'நகர்', text => holds('ஊர்பெயர்', 'கோவை' + text));
        await tap(word);
        await compose(['ச'], 'சொல்', text => holds('input_#', text));
        onlyOwn();
    });
});
