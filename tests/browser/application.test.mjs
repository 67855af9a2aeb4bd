// A whole application, from its source, by the real em++ in a real browser.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, photograph, pixel, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, tidyUp, version} from './support/tool.mjs';

const source = (title, background) => `வலைதளம் கணக்கி(
    தலைமை(
        இணைய_தலைப்பு: "${title}"
        பின்னணி: "${background}"
    )
    குமரி(
        நெடுவரிசை(
            உரை("எண்ணிக்கை")
            பொத்தான்("கூட்டு", அழுத்தினால்: வினை(): கூடு())
        )
    )
    வரையறை(
        எண்ணிக்கை = 0
        செயல் கூடு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            புதுப்பி()
    )
)
`;

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    workplace.write('நிரல்.பொழில்', source('என் கணக்கி', '#FFF3E0'));
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the first build', 120);
    browser = await launch();
});

after(() => tidyUp(browser, compiler, workplace));

// The fonts under assets/font are missing here, which the program warns of on its output; the web
// font lies outside this machine.
const ownProblems = () => page.problems.filter(line => !line.includes('ERR_FAILED'));

/** Waits until a frame has drawn the page's text; the page's head alone comes before that. */
const drawn = () => until(() => page.evaluate(() => {
    const layer = document.getElementById('textCanvas');
    if (!layer) return false;
    const {data} = layer.getContext('2d').getImageData(0, 0, 300, 60);
    return data.some((byte, index) => index % 4 === 3 && byte > 0);
}).catch(() => false), 'the text on the text layer');

test('opens with its title, background and text', async () => {
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    page = await openPage(browser);
    await page.goto(address);
    await drawn();
    await photograph(page, 'application');
    assert.equal(await page.title(), 'என் கணக்கி');
    assert.deepEqual(await pixel(page, 1200, 700), [0xff, 0xf3, 0xe0]);
    assert.deepEqual(ownProblems(), []);
});

test('a save reloads the page', async () => {
    workplace.write('நிரல்.பொழில்', source('புதிய கணக்கி', '#E0F7FA'));
    await until(async () => (await page.title().catch(() => '')) === 'புதிய கணக்கி', 'the new title', 120);
    assert.equal(await version(), '3');
    await drawn();
    assert.deepEqual(await pixel(page, 1200, 700), [0xe0, 0xf7, 0xfa]);
    await photograph(page, 'application_after_save');
    assert.deepEqual(ownProblems(), []);
});

test('a change of the window\'s size needs no event of ours', async () => {
    await page.setViewportSize({width: 900, height: 500});
    const sizes = () => page.evaluate(() => ['canvas', 'textCanvas'].map(id => {
        const {width, height} = document.getElementById(id).getBoundingClientRect();
        return `${width}x${height}`;
    }));
    await until(async () => (await sizes()).every(size => size === '900x500'), 'both canvases to follow');
    assert.deepEqual(ownProblems(), []);
    await page.setViewportSize({width: 1280, height: 720});
});

test('an input that no widget drew disappears and is kept', async () => {
    await page.evaluate(() => {
        const input = document.createElement('input');
        input.id = 'left_behind';
        input.className = 'pozhil-input';
        input.dataset.touched = '1';
        input.value = 'உரை';
        document.body.appendChild(input);
    });
    const state = () => page.evaluate(() => {
        const input = document.getElementById('left_behind');
        return [input.style.display, input.dataset.touched, input.value];
    });
    await until(async () => (await state())[0] === 'none', 'the sweep');
    assert.deepEqual(await state(), ['none', '0', 'உரை']);
});

test('a click is a pulse that one frame takes', async () => {
    await page.mouse.move(300, 200);
    await page.mouse.down();
    assert.deepEqual(await page.evaluate(() => [window.mouseX, window.mouseY, window.mouseDownState]),
        [300, 200, 1]);
    await until(() => page.evaluate(() => window.mouseClicked === 0), 'a frame to take the click');
    await page.mouse.up();
    assert.equal(await page.evaluate(() => window.mouseDownState), 0);
    await page.mouse.wheel(3, 40);
    await until(() => page.evaluate(() => window.wheelDelta === 40 && window.wheelDeltaX === 3), 'the wheel');
});

test('a failed build leaves the version as it was', async () => {
    const failing = source('பிழையுள்ளது', '#E0F7FA').replace('        செயல் கூடு',
        '        செயல் முன்():\n            திரும்பு பின்()\n        செயல் பின்():\n            விடு\n        செயல் கூடு');
    workplace.write('நிரல்.பொழில்', failing);
    await until(() => compiler.output.includes('(பொழில்-404)'), 'the failure', 120);
    assert.equal(await version(), '3');
    assert.equal(await page.title(), 'புதிய கணக்கி');
});

test('a failure in the logic section shows its report on the page', async () => {
    const failing = source('நின்றது', '#E0F7FA').replace('எண்ணிக்கை = 0\n',
        'பட்டியல் = [1, 2]\n        எண்ணிக்கை = பட்டியல்[5]\n');
    workplace.write('நிரல்.பொழில்', failing);
    const report = await page.waitForSelector('#notice.failed #report', {timeout: 120000});
    assert.equal(await version(), '4');
    const text = await report.textContent();
    assert.match(text, /🚨 \[ பொழில்-311 \] :: பொருள் பிழை \(இயக்கநேரம்\)/);
    assert.ok(!text.includes('\x1b'), text);
    await photograph(page, 'report_of_logic');
    workplace.write('நிரல்.பொழில்', source('மீண்டும்', '#E0F7FA'));
    await until(async () => (await page.title().catch(() => '')) === 'மீண்டும்', 'the mended page', 120);
    await drawn();
    assert.ok(await page.isHidden('#notice'));
});

test('a saved syntax error ends the tool with status 1', async () => {
    workplace.write('நிரல்.பொழில்', 'வலைதளம் கணக்கி()\n');
    assert.deepEqual(await compiler.finished, {status: 1, signal: null});
    assert.ok(compiler.output.includes('பொழில்-401'), compiler.output);
});
