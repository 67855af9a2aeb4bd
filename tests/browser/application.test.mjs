// A whole application, from its source, by the real em++ in a real browser.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, photograph, pixel, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, version} from './support/tool.mjs';

const source = (title, background) => `வலைதளம் கணக்கி(
    தலைமை(
        இணைய_தலைப்பு: "${title}"
        பின்னணி: "${background}"
    )
    குமரி(
        நெடுவரிசை(
            உரை("எண்ணிக்கை")
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

after(async () => {
    await browser?.close();
    compiler?.stop('SIGKILL');
    await compiler?.finished;
    workplace?.remove();
});

// The fonts under assets/font are missing here, which the program warns of on its output; the web
// font lies outside this machine.
const ownProblems = () => page.problems.filter(line => !line.includes('ERR_FAILED'));

test('opens with its title and background', async () => {
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    page = await openPage(browser);
    await page.goto(address);
    await page.waitForSelector('#textCanvas', {state: 'attached'});
    await page.waitForTimeout(1000);
    await photograph(page, 'application');
    assert.equal(await page.title(), 'என் கணக்கி');
    assert.deepEqual(await pixel(page, 1200, 700), [0xff, 0xf3, 0xe0]);
    assert.deepEqual(ownProblems(), []);
});

test('a save reloads the page', async () => {
    workplace.write('நிரல்.பொழில்', source('புதிய கணக்கி', '#E0F7FA'));
    await until(async () => (await page.title().catch(() => '')) === 'புதிய கணக்கி', 'the new title', 120);
    assert.equal(await version(), '3');
    await until(async () => (await pixel(page, 1200, 700).catch(() => []))[0] === 0xe0, 'the new colour');
    await photograph(page, 'application_after_save');
    assert.deepEqual(ownProblems(), []);
});

test('a saved syntax error ends the tool with status 1', async () => {
    workplace.write('நிரல்.பொழில்', 'வலைதளம் கணக்கி()\n');
    assert.deepEqual(await compiler.finished, {status: 1, signal: null});
    assert.ok(compiler.output.includes('பொழில்-401'), compiler.output);
});
