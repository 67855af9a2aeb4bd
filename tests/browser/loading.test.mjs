// What the page shows while its program loads, when that fails, and when the program ends early.
import assert from 'node:assert/strict';
import {after, afterEach, before, test} from 'node:test';
import {desk, launch, openPage, photograph, until} from './support/browser.mjs';
import {readProgram, serveHandPage} from './support/hand_page.mjs';
import {standIn} from './support/stand_in.mjs';

const small = {viewport: {width: 640, height: 480}, screen: desk.screen};
const telephone = {viewport: {width: 390, height: 844}, deviceScaleFactor: 3, isMobile: true, hasTouch: true};

let program, server, browser, page;

before(async () => {
    const builder = await serveHandPage();
    program = await readProgram(builder.address);
    await builder.stop();
    server = await standIn(program);
    browser = await launch();
});

after(async () => {
    await browser?.close();
    await server?.goAway();
});

afterEach(async () => {
    await page.context().close();
    server.trouble = {};
    server.told = server.built = 2;
});

async function open(trouble = {}, {options = small, prepare} = {}) {
    server.trouble = trouble;
    page = await openPage(browser, options, prepare);
    await page.goto(server.address, {waitUntil: 'commit'});
}

const runs = () => page.waitForFunction(() => window.framesDrawn > 0, null, {timeout: 60000});
const failure = () => page.waitForSelector('#notice.failed', {timeout: 60000})
    .then(() => page.textContent('#notice'));

/** Every word that is seen is Tamil, but for the few names that have no other. */
function assertTamil(text) {
    const own = text.replace(/JavaScript|WebAssembly|WebGL|hardware acceleration|console/g, '');
    assert.equal(own.match(/[A-Za-z]+/g), null, text);
}

test('shows how much has come, and goes when all is there', async () => {
    await open({'/index.wasm': 'held'});
    await page.waitForSelector('#progress');
    assert.match(await page.textContent('#notice'), /நிரல் ஏற்றப்படுகிறது/);
    const half = (program['/index.wasm'].length / 2 + program['/index.data'].length) / 1e6;
    const all = (program['/index.wasm'].length + program['/index.data'].length) / 1e6;
    await until(async () => (await page.textContent('#amount')).includes(
        `${all.toFixed(1)} மெகாபைட்டில் ${half.toFixed(1)} வந்துவிட்டது`), 'half of it');
    const share = await page.evaluate(() => parseFloat(document.querySelector('#progress div').style.width));
    assert.ok(Math.abs(share - 100 * half / all) < 2, `the bar stands at ${share}`);
    await photograph(page, 'loading');
    assertTamil(await page.textContent('#notice'));
    server.trouble.goOn();
    await runs();
    assert.ok(await page.isHidden('#notice'));
});

test('says when it takes long, and no longer once something comes', async () => {
    await open({'/index.wasm': 'held'}, {prepare: opened => opened.clock.install()});
    await page.waitForFunction(() => document.getElementById('amount')?.textContent);
    assert.ok(await page.isHidden('#slow'));
    await page.clock.fastForward(11000);
    await page.waitForSelector('#slow', {state: 'visible'});
    assert.ok(!await page.isVisible('#notice.failed'), 'that is no failure');
    await photograph(page, 'loading_slowly');
    server.trouble.goOn();
    await runs();
    assert.ok(await page.isHidden('#notice'));
});

for (const name of ['index.js', 'index.wasm', 'index.data']) {
    test(`without ${name} it says that the program is not built`, async () => {
        await open({[`/${name}`]: 'missing'});
        const text = await failure();
        assert.match(text, /நிரல் இன்னும் தொகுக்கப்படவில்லை/);
        assertTamil(text);
        if (name === 'index.js') await photograph(page, 'not_built');
        server.trouble = {};
        await runs();
        assert.ok(await page.isHidden('#notice'), 'it comes back by itself');
    });

    test(`a transfer of ${name} that breaks off is told, and tried again at will`, async () => {
        await open({[`/${name}`]: 'broken'});
        const text = await failure();
        assert.match(text, /இணைப்பு அறுந்தது/);
        assertTamil(text);
        if (name === 'index.data') await photograph(page, 'broken_off');
        server.trouble = {};
        await page.click('text=மீண்டும் ஏற்று');
        await runs();
    });
}

test('a program that the browser refuses is told in Tamil', async () => {
    await open({}, {prepare: opened =>
        opened.route('**/index.wasm', route => route.fulfill({body: 'no program'}))});
    const text = await failure();
    assert.match(text, /நிரலைத் தொடங்க முடியவில்லை/);
    assertTamil(text);
});

test('says so when WebGL is missing', async () => {
    await open({}, {prepare: opened => opened.addInitScript(() => {
        HTMLCanvasElement.prototype.getContext = () => null;
    })});
    const text = await failure();
    assert.match(text, /இந்த உலாவியில் WebGL இயங்கவில்லை/);
    assertTamil(text);
    await page.waitForFunction(() => window.Module?.calledRun);
    assert.equal(await page.textContent('#notice'), text, 'and keeps saying so');
    await photograph(page, 'no_webgl');
});

test('says so when WebAssembly is missing', async () => {
    await open({}, {prepare: opened => opened.addInitScript(() => { delete window.WebAssembly; })});
    const text = await failure();
    assert.match(text, /இந்த உலாவியில் WebAssembly இல்லை/);
    await until(() => page.problems.length > 0, 'the program to give up');
    assert.equal(await page.textContent('#notice'), text);
});

/** The driver takes the page's drawing away, and gives it back. */
const loseDrawing = () => page.evaluate(async () => {
    const drawing = document.getElementById('canvas').getContext('webgl').getExtension('WEBGL_lose_context');
    window.isOld = true;
    drawing.loseContext();
    await new Promise(resolve => setTimeout(resolve, 200));
    drawing.restoreContext();
});

test('starts anew when the browser has taken its drawing back', async () => {
    await open();
    await runs();
    await loseDrawing();
    await page.waitForFunction(() => !window.isOld && window.framesDrawn > 0);
    assert.ok(await page.isHidden('#notice'));
});

test('keeps what it says when the drawing of a program that has stopped comes back', async () => {
    await open();
    await runs();
    await page.evaluate(() => { setTimeout(() => Module._stop_with_trap(), 0); });
    const text = await failure();
    await loseDrawing();
    await page.waitForTimeout(500);
    assert.ok(await page.evaluate(() => window.isOld));
    assert.equal(await page.textContent('#notice'), text);
});

test('says so when JavaScript is off, and nothing else', async () => {
    await open({}, {options: {...small, javaScriptEnabled: false}});
    await page.waitForSelector('noscript .card', {state: 'visible'});
    assert.match(await page.textContent('noscript .card'), /JavaScript தேவை/);
    const {x, y, width, height} = await page.locator('noscript .card').boundingBox();
    assert.ok(x > 0 && y > 0 && x + width < 640 && y + height < 480, 'inside the window');
    assert.ok(await page.isHidden('#notice'));
    await photograph(page, 'no_script');
});

const stops = [
    ['_stop_with_trap', /எதிர்பாராத சிக்கல்/],
    ['_stop_with_depth', /முடிவின்றி ஒன்றையொன்று அழைக்கின்றன/],
    ['_stop_in_silence', /முடிக்காமலேயே நின்றது/],
];
for (const [call, says] of stops) {
    test(`says so when the program stops: ${call}`, async () => {
        await open();
        await runs();
        await page.evaluate(name => { setTimeout(() => Module[name](), 0); }, call);
        const text = await failure();
        assert.match(text, /நிரல் நின்றுவிட்டது/);
        assert.match(text, says);
        assertTamil(text);
        if (call === '_stop_with_trap') await photograph(page, 'stopped');
    });
}

for (const [where, options] of [['a desk', small], ['a telephone', telephone]]) {
    test(`shows the report of a program that ended early, on ${where}`, async () => {
        await open({}, {options});
        await runs();
        await page.evaluate(() => { setTimeout(() => Module._stop_with_report(), 0); });
        await failure();
        await photograph(page, `report_on_${where.slice(2)}`);
        const lines = (await page.textContent('#report')).trim();
        assert.ok(lines.startsWith('-'.repeat(60)), lines);
        assert.match(lines, /பொழில்-301/);
        assert.match(lines, /💡 சரி செய்யும் முறை/);
        assert.ok(!lines.includes('\x1b') && !/\[[\d;]+m/.test(lines), lines);
        assert.ok(!lines.includes('தொடங்கியது'), 'what it printed before is no part of it');
        assert.ok(page.printed.some(line => line.includes('பொழில்-301')), 'it stands on the console too');
        const look = await page.evaluate(() => {
            const report = document.getElementById('report');
            const gold = [...report.querySelectorAll('.gold')].map(run => run.textContent);
            const {left, right, top, bottom} = report.getBoundingClientRect();
            return {gold, family: getComputedStyle(report).fontFamily, inside: left >= 0 && top >= 0 &&
                right <= innerWidth && bottom <= innerHeight, wide: report.scrollWidth > report.clientWidth};
        });
        assert.ok(look.gold.includes('பொழில்-301'), String(look.gold));
        assert.match(look.family, /monospace/);
        assert.ok(look.inside, 'it stands inside the window');
        assert.ok(!look.wide, 'and needs no scrolling sideways');
        const frames = await page.evaluate(() => window.framesDrawn);
        await page.evaluate(() => new Promise(resolve => setTimeout(resolve, 200)));
        assert.equal(await page.evaluate(() => window.framesDrawn), frames, 'no frame follows');
    });
}

test('a long report is scrolled inside its box', async () => {
    await open({}, {options: {...small, viewport: {width: 640, height: 300}}});
    await runs();
    await page.evaluate(() => {
        // As the listener of a program does it.
        window.addEventListener('wheel', event => event.preventDefault(), {passive: false});
        setTimeout(() => Module._stop_with_report(), 0);
    });
    await failure();
    const box = await page.locator('#report').boundingBox();
    await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
    await page.mouse.wheel(0, 2000);
    await until(() => page.evaluate(() => {
        const report = document.getElementById('report');
        return report.scrollTop > 0 && report.scrollTop + report.clientHeight >= report.scrollHeight - 2;
    }), 'its end');
    await photograph(page, 'report_scrolled');
});
