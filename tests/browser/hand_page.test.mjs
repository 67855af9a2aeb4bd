// The page template and the set-up, with a program written by hand and built by the exact command.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {desk, launch, openPage, photograph, pixel, until} from './support/browser.mjs';
import {giveFrames} from './support/frames.mjs';
import {serveHandPage} from './support/hand_page.mjs';

const background = [0xff, 0xf3, 0xe0];

let server, browser, address;

before(async () => {
    server = await serveHandPage();
    address = server.address;
    browser = await launch();
});

after(async () => {
    await browser?.close();
    await server?.stop();
});

async function openHandPage(options = desk, prepare) {
    const page = await openPage(browser, options, prepare);
    await page.goto(address);
    return page;
}

const framesDrawn = (page, count) => until(async () => {
    giveFrames(count, page);
    return page.evaluate(wanted => window.framesDrawn > wanted, count);
}, `${count} frames`);

test('draws, with the title, icon and background of its head', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 5);
    assert.equal(await page.title(), 'கைப்பக்கம் & <தலைப்பு>');
    assert.equal(await page.evaluate(() => document.documentElement.lang), 'ta');
    assert.match(await page.getAttribute('link[rel=icon]', 'href'),
        /^data:image\/svg\+xml;base64,PHN2ZyB4bWxucz0i/);
    assert.equal(await page.evaluate(() => getComputedStyle(document.body).backgroundColor),
        'rgb(255, 243, 224)');
    await photograph(page, 'hand_page');
    assert.deepEqual(await pixel(page, 50, 300), [255, 0, 0]);
    assert.deepEqual(await pixel(page, 250, 50), [0, 255, 0]);
    assert.deepEqual(await pixel(page, 1270, 710), [0, 0, 255]);
    assert.deepEqual(await pixel(page, 600, 300), background);
    assert.ok(await page.isHidden('#notice'));
    assert.deepEqual(page.problems, []);
    assert.deepEqual(page.printed, ['தொடங்கியது']);
});

test('calls cross both ways, under Tamil names too', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 1);
    assert.equal(await page.evaluate(() => Module.வணங்கு('உலகு')), 'வணக்கம், உலகு');
    await page.evaluate(() => Module.set_input_value('input_1', 'அஆஇ'));
    assert.equal(await page.evaluate(() => window.received), 'input_1=அஆஇ');
    await page.evaluate(() => Module.ccall('set_input_value', null, ['string', 'string'], ['b', 'ஈ']));
    assert.equal(await page.evaluate(() => window.received), 'b=ஈ');
});

test('carries the files that the tree and the assets folder name', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 1);
    assert.equal(await page.evaluate(() => FS.readFile('assets/உரை.txt', {encoding: 'utf8'})), 'asset');
    assert.equal(await page.evaluate(() => FS.analyzePath('படம்.png').exists), true);
});

test('follows the size of the browser', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 1);
    await page.setViewportSize({width: 800, height: 600});
    await framesDrawn(page, await page.evaluate(() => window.framesDrawn) + 3);
    await until(async () => (await pixel(page, 790, 590))[2] === 255, 'the blue corner');
    assert.deepEqual(page.problems, []);
});

test('a page as large as the screen asks for no full screen', async () => {
    const page = await openHandPage({viewport: desk.viewport, screen: desk.viewport});
    await framesDrawn(page, 20);
    assert.equal(await page.evaluate(() => document.getElementById('canvas').parentNode.tagName), 'BODY');
    assert.deepEqual(await pixel(page, 1270, 710), [0, 0, 255]);
    assert.deepEqual(page.problems, []);
});
