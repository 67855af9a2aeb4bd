// The pages in a browser, opened from the disk: the search, light and dark, narrow screens, copying. Nothing
// but files of the site is asked for.
import assert from 'node:assert/strict';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {launch} from '../browser/support/browser.mjs';
import {filesOf, madeSite, pageText, samples} from './support/made.mjs';

let browser;
let whole;
let sample;
before(async () => {
    whole = madeSite('whole');
    sample = madeSite('sample', samples);
    browser = await launch(['--disable-gpu']);  // the pages draw nothing that would want it
});
after(() => browser?.close());

const desk = {viewport: {width: 1366, height: 900}};
const telephone = {viewport: {width: 360, height: 740}, deviceScaleFactor: 2, isMobile: true, hasTouch: true};
const chapter = 'வழிகாட்டி/01_முதல்_நிரல்.html';
const addressOf = (site, name) => pathToFileURL(join(site, name)).href;

/** A page of its own context; `page.asked` holds what it asked for, `page.problems` what went wrong in it. */
async function open(site, name, options = desk) {
    const context = await browser.newContext(options);
    const page = await context.newPage();
    page.asked = [];
    page.problems = [];
    page.on('request', request => page.asked.push(request.url()));
    page.on('console', message => { if (message.type() === 'error') page.problems.push(message.text()); });
    page.on('pageerror', error => page.problems.push(String(error)));
    await page.goto(addressOf(site, name));
    return page;
}

const close = page => page.context().close();

/** What the search shows for `text`: [title, address] of each result. */
async function find(page, text) {
    await page.fill('.search input', '');
    await page.waitForFunction(() => document.querySelector('.results').hidden);
    await page.fill('.search input', text);
    await page.waitForSelector('.results > *');
    return page.$$eval('.results a', links => links.map(link => [link.querySelector('strong').textContent, decodeURIComponent(link.href)]));
}

/** What is typed, and the title that is found first. */
const searches = [
    ['அச்சிடு', 'அச்சிடு'], ['அச்', 'அச்சிடு'], ['அச்ச', 'அச்சிடு'], ['சிடு', 'அச்சிடு'],
    ['achchidu', 'அச்சிடு'], ['acchidu', 'அச்சிடு'], ['achi', 'அச்சிடு'], ['print', 'அச்சிடு'], ['pri', 'அச்சிடு'],
    ['எனில்', 'எனில்'], ['enil', 'எனில்'], ['if', 'எனில்'],
    ['உள்ளீடு', 'உள்ளீடு'], ['உளளிடு', 'உள்ளீடு'], ['ulleedu', 'உள்ளீடு'], ['input', 'உள்ளீடு'],
    ['பொத்தான்', 'பொத்தான்'], ['poththaan', 'பொத்தான்'], ['button', 'பொத்தான்'],
    ['பெட்டி', 'உரைபெட்டி'], ['petti', 'உரைபெட்டி'],
    ['முடிவில்லாத சுற்றை', 'சுற்று என்றால் என்ன?'], ['foreach', 'ஒவ்வொன்றாக'], ['ovvonraaka', 'ஒவ்வொன்றாக'],
    ['variable', 'A first program'], ['LOOP', 'A first program'], ['516', 'துணை-516'], ['vaangu', 'பொத்தான்'],
    ['achchiduu', 'அச்சிடு'], ['buttom', 'பொத்தான்'],
];

test('the search finds words whole, in part, by sound, and in English', async () => {
    const page = await open(sample, chapter);
    for (const [typed, title] of searches) {
        const titles = (await find(page, typed)).map(([first]) => first);
        assert.equal(titles[0], title, `${typed}: ${titles}`);
    }
    assert.deepEqual(page.problems, []);
    await close(page);
});

test('a result shows the sentence and leads to its heading', async () => {
    const page = await open(sample, 'குறிப்பேடு/உறுப்புகள்/பொத்தான்.html');
    const [[title, address]] = await find(page, 'முடிவில்லாத');
    assert.equal(title, 'சுற்று என்றால் என்ன?');
    assert.ok(address.endsWith('வழிகாட்டி/02_சுற்றுகள்.html#சுற்று-என்றால்-என்ன'), address);
    assert.equal(await page.textContent('.results a span'), 'முடிவில்லாத சுற்றை நிறுத்து என்ற சொல் முடிக்கும்.');
    assert.equal(await page.textContent('.results mark'), 'முடிவில்லாத');
    await page.keyboard.press('Enter');
    await page.waitForURL(url => decodeURIComponent(url.href) === address);
    assert.ok(await page.isVisible('h2#சுற்று-என்றால்-என்ன'));
    await close(page);
});

test('what stands nowhere is said to stand nowhere', async () => {
    const page = await open(sample, 'index.html');
    assert.deepEqual(await find(page, 'xyzzyq'), []);
    assert.match(await page.textContent('.results'), /'xyzzyq' எங்கும் கிடைக்கவில்லை/);
    await page.keyboard.press('Escape');
    assert.ok(await page.isHidden('.results'));
    await close(page);
});

test('the keyboard alone reaches field and results', async () => {
    const page = await open(sample, 'index.html');
    await page.keyboard.press('/');
    await page.keyboard.type('print');
    await page.waitForSelector('.results a');
    await page.keyboard.press('ArrowDown');
    assert.equal(await page.evaluate(() => document.activeElement.querySelector('strong').textContent), 'அச்சிடு');
    await page.keyboard.press('ArrowUp');
    assert.equal(await page.evaluate(() => document.activeElement.type), 'search');
    await close(page);
});

test('nothing but the site\'s own files is asked for', async () => {
    const page = await open(sample, chapter);
    await find(page, 'அச்சிடு');
    const folder = `${pathToFileURL(sample).href}/`;
    assert.ok(page.asked.some(address => address.endsWith('search-index.js')));
    assert.deepEqual(page.asked.filter(address => !address.startsWith(folder) && address !== 'data:,'), []);
    assert.deepEqual(page.problems, []);
    await close(page);
});

/** Texts whose colour is hard to tell from their ground: [text, ratio]. */
function paleTexts() {
    const numbers = colour => colour.match(/[\d.]+/g).map(Number);
    const light = colour => {
        const [red, green, blue] = numbers(colour).map(part => part / 255).map(part => part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4);
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    };
    const groundOf = element => {
        for (let at = element; at; at = at.parentElement) {
            const colour = getComputedStyle(at).backgroundColor;
            if ((numbers(colour)[3] ?? 1) > 0) return colour;
        }
        return 'rgb(255, 255, 255)';
    };
    const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const pale = [];
    let looked = 0;
    while (texts.nextNode()) {
        const element = texts.currentNode.parentElement;
        if (!texts.currentNode.data.trim() || !element.checkVisibility() || element.tagName === 'SCRIPT') continue;
        const [one, other] = [light(getComputedStyle(element).color), light(groundOf(element))].sort((a, b) => b - a);
        const ratio = (one + 0.05) / (other + 0.05);
        looked++;
        if (ratio < 4.5) pale.push([texts.currentNode.data.trim(), ratio]);
    }
    return {looked, pale};
}

for (const colorScheme of ['light', 'dark']) {
    test(`each text can be read where the system is ${colorScheme}`, async () => {
        for (const name of [chapter, 'குறிப்பேடு/உறுப்புகள்/பொத்தான்.html']) {
            const page = await open(sample, name, {...desk, colorScheme});
            await page.evaluate(() => { for (const box of document.querySelectorAll('details')) box.open = true; });
            await find(page, 'அச்சிடு');
            const {looked, pale} = await page.evaluate(paleTexts);
            assert.ok(looked > 30);
            assert.deepEqual(pale, [], name);
            await close(page);
        }
    });
}

const groundOf = page => page.evaluate(() => getComputedStyle(document.body).backgroundColor);

test('the look follows the system until the reader chooses, and the choice is kept', async () => {
    const grounds = {};
    for (const colorScheme of ['light', 'dark']) {
        const page = await open(sample, 'index.html', {...desk, colorScheme});
        grounds[colorScheme] = await groundOf(page);
        await close(page);
    }
    assert.notEqual(grounds.light, grounds.dark);
    const page = await open(sample, 'index.html', {...desk, colorScheme: 'light'});
    await page.click('.look-switch');
    assert.equal(await groundOf(page), grounds.dark);
    await page.goto(addressOf(sample, chapter));
    assert.equal(await groundOf(page), grounds.dark);
    await page.click('.look-switch');
    assert.equal(await groundOf(page), grounds.light);
    await close(page);
});

/** Shows another page's text in the place of this one's, and tells how wide the whole is then. */
function widthWith(main) {
    const text = document.createElement('div');
    text.innerHTML = main;
    document.querySelector('main').replaceWith(text.firstChild);
    for (const box of document.querySelectorAll('details')) box.open = true;
    return document.documentElement.scrollWidth;
}

test('no page scrolls sideways on a telephone', async () => {
    const page = await open(sample, chapter, telephone);
    const boxes = await page.$$eval('.table, pre', found => found.map(box => box.scrollWidth > box.clientWidth));
    assert.ok(boxes.includes(true), 'a long line scrolls in its own box');
    assert.deepEqual(page.problems, []);
    assert.ok(await page.evaluate(widthWith, `<main>${'அ'.repeat(90)}<pre>${'அ'.repeat(90)}</pre></main>`) > 360);
    // All pages have one frame and one style: to open each of them would take three times as long.
    const wide = [];
    for (const site of [sample, whole]) {
        for (const name of filesOf(site, '.html')) {
            const width = await page.evaluate(widthWith, /<main[^]*<\/main>/.exec(pageText(site, name))[0]);
            if (width > 360) wide.push([name, width]);
        }
    }
    assert.deepEqual(wide, []);
    await close(page);
});

test('a telephone has the menu behind its button', async () => {
    const page = await open(sample, chapter, telephone);
    assert.ok(await page.isHidden('.menu'));
    await page.tap('.menu-switch');
    const link = page.locator('.menu a', {hasText: 'திரும்பத் திரும்ப'});
    await link.tap();
    await page.waitForURL(url => decodeURIComponent(url.href).endsWith('02_சுற்றுகள்.html'));
    await close(page);
});

test('without scripts the menu and all text are there', async () => {
    const page = await open(sample, chapter, {...telephone, javaScriptEnabled: false});
    assert.ok(await page.isVisible('.menu'));
    assert.ok(await page.isHidden('.search'));
    assert.ok(await page.isHidden('.copy >> nth=0'));
    await close(page);
});

test('a program is copied as it stands', async () => {
    const page = await open(sample, chapter);
    await page.evaluate(() => {
        document.addEventListener('copy', () => { window.copied = String(document.activeElement.value); });
        Object.defineProperty(navigator, 'clipboard', {value: {writeText: async text => { window.copied = text; }}});
    });
    await page.click('.copy >> nth=0');
    await page.waitForFunction(() => window.copied !== undefined);
    assert.equal(await page.evaluate(() => window.copied),
        'ஃ கேட்டு வாழ்த்தும்\nபெயர் = உள்ளீடு("உன் பெயர்? ")\nஅச்சிடு("வாழ்க <", பெயர், ">")\n');
    assert.equal(await page.textContent('.copy >> nth=0'), 'நகலானது');
    await close(page);
});
