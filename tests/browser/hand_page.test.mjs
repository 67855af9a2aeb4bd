// The page template and the set-up, with a program written by hand and built by the exact command.
import assert from 'node:assert/strict';
import {mkdirSync} from 'node:fs';
import {createServer} from 'node:net';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {desk, launch, openPage, photograph, pixel, until} from './support/browser.mjs';
import {makeWorkplace, start} from './support/tool.mjs';

const here = dirname(fileURLToPath(import.meta.url));
const background = [0xff, 0xf3, 0xe0];

let workplace, server, browser, address;

function freePort() {
    return new Promise(resolve => {
        const probe = createServer().listen(0, () => {
            const {port} = probe.address();
            probe.close(() => resolve(port));
        });
    });
}

before(async () => {
    workplace = makeWorkplace();
    mkdirSync(join(workplace.work, 'வெளியீடு'));
    mkdirSync(join(workplace.work, 'assets'));
    workplace.write('assets/உரை.txt', 'asset');
    workplace.write('படம்.png', 'not looked at');
    workplace.write('icon.svg', '<svg xmlns="http://www.w3.org/2000/svg"/>');
    const port = await freePort();
    address = `http://localhost:${port}/`;
    server = start(process.env.POZHIL_HAND_PAGE_SERVER,
        [process.env.POZHIL_EXECUTABLE_DIR, join(workplace.root, 'tmp'),
            join(here, 'hand_page.cpp'), String(port)], workplace);
    await until(() => server.output.includes('ready') || server.ended, 'the build');
    assert.equal(server.ended, null, server.output);
    browser = await launch();
});

after(async () => {
    await browser?.close();
    server?.stop('SIGKILL');
    await server?.finished;
    workplace?.remove();
});

async function openHandPage(options = desk, prepare) {
    const page = await openPage(browser, options, prepare);
    await page.goto(address);
    return page;
}

const framesDrawn = (page, count) => page.waitForFunction(n => window.framesDrawn > n, count);

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

test('shows something to look at while the program loads', async () => {
    let letThrough;
    const held = new Promise(resolve => { letThrough = resolve; });
    const page = await openPage(browser, desk, async opened => {
        await opened.route('**/index.wasm', async route => { await held; await route.continue(); });
    });
    await page.goto(address, {waitUntil: 'commit'});
    await page.waitForSelector('#notice h1');
    assert.match(await page.textContent('#notice'), /நிரல் ஏற்றப்படுகிறது/);
    assert.ok(await page.isVisible('#progress'));
    await photograph(page, 'loading');
    letThrough();
    await framesDrawn(page, 1);
    assert.ok(await page.isHidden('#notice'));
});

test('says so when WebGL is missing', async () => {
    const page = await openHandPage(desk, opened => opened.addInitScript(() => {
        HTMLCanvasElement.prototype.getContext = () => null;
    }));
    await page.waitForSelector('#notice .failed');
    assert.match(await page.textContent('#notice'), /இந்த உலாவியில் WebGL இயங்கவில்லை/);
    await page.waitForTimeout(1000);
    assert.ok(await page.isVisible('#notice .failed'), 'and keeps saying so');
    await photograph(page, 'no_webgl');
});

test('says so when WebAssembly is missing', async () => {
    const page = await openHandPage(desk, opened => opened.addInitScript(() => {
        delete window.WebAssembly;
    }));
    await page.waitForSelector('#notice .failed');
    assert.match(await page.textContent('#notice'), /இந்த உலாவியில் WebAssembly இல்லை/);
    await page.waitForTimeout(500);
    assert.match(await page.textContent('#notice'), /இந்த உலாவியில் WebAssembly இல்லை/);
});

test('says so when the program is not there, and comes back by itself', async () => {
    let built = false;
    const page = await openHandPage(desk, opened => opened.route('**/index.js', route =>
        built ? route.continue() : route.fulfill({status: 404, body: ''})));
    await page.waitForSelector('#notice .failed');
    assert.match(await page.textContent('#notice'), /நிரலை ஏற்ற முடியவில்லை/);
    await photograph(page, 'not_built');
    built = true;
    await framesDrawn(page, 1);
    assert.ok(await page.isHidden('#notice'));
});

test('says so when the program cannot be loaded', async () => {
    const page = await openHandPage(desk, opened =>
        opened.route('**/index.wasm', route => route.fulfill({status: 404, body: ''})));
    await page.waitForSelector('#notice .failed');
    assert.match(await page.textContent('#notice'), /நிரல் நின்றுவிட்டது/);
});

test('says so when the program stops', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 1);
    await page.evaluate(() => { setTimeout(() => Module._stop_with_trap(), 0); });
    await page.waitForSelector('#notice .failed');
    assert.match(await page.textContent('#notice'), /நிரல் நின்றுவிட்டது/);
    await photograph(page, 'stopped');
});

test('prints a report of the program on the console', async () => {
    const page = await openHandPage();
    await framesDrawn(page, 1);
    await page.evaluate(() => { setTimeout(() => Module._stop_with_report(), 0); });
    await until(() => page.printed.some(line => line.includes('பொழில்-301')), 'the report');
});
