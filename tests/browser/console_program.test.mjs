// The whole web road with the real em++ and a real browser: build, serve, save, reload, end.
// A program without a widget shows itself on the browser's console.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, tidyUp, version} from './support/tool.mjs';

let workplace, compiler, browser, page;

const printed = line => until(() => page.printed.includes(line), `the console line "${line}"`);

before(async () => {
    workplace = makeWorkplace();
    workplace.write('நிரல்.பொழில்', 'அச்சிடு("முதல் வணக்கம்")\n');
    compiler = startCompiler(workplace, '--வலை', 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the first build');
    browser = await launch();
});

after(() => tidyUp(browser, compiler, workplace));

test('the first build is served', async () => {
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    page = await openPage(browser);
    await page.goto(address);
    await printed('முதல் வணக்கம்');
    assert.equal(await version(), '2');
    assert.equal(await page.title(), 'பொழில் தளம்');
    assert.equal(await page.evaluate(() => getComputedStyle(document.body).backgroundColor),
        'rgb(255, 255, 255)');
    assert.deepEqual(page.problems, []);
});

test('a save reloads the page, once', async () => {
    const saved = Date.now();
    workplace.write('நிரல்.பொழில்', 'அச்சிடு("இரண்டாம் வணக்கம்")\n');
    await until(() => compiler.output.includes('🔄'), 'the change to be seen');
    const seen = Date.now();
    await printed('இரண்டாம் வணக்கம்');
    const shown = Date.now();
    const [, , compilerStart, compilerEnd] = workplace.compilerTimes();
    console.log(`save to change seen ${seen - saved} ms, scan to page ${Math.round(compilerStart - seen)} ms, ` +
        `em++ ${Math.round(compilerEnd - compilerStart)} ms, poll, load and run ${Math.round(shown - compilerEnd)} ms`);
    assert.equal(await version(), '3');
    await page.waitForTimeout(1500);
    assert.equal(page.printed.filter(line => line === 'இரண்டாம் வணக்கம்').length, 1);
    assert.deepEqual(page.problems, []);
});

test('a failed build leaves the version and the open page', async () => {
    workplace.breakCompiler(true);
    workplace.write('நிரல்.பொழில்', 'அச்சிடு("வராது")\n');
    await until(() => compiler.output.includes('(பொழில்-404)'), 'the failed build');
    assert.equal(await version(), '3');
    await page.waitForTimeout(1200);
    assert.equal(page.printed.length, 2, 'the page stays as it is');
    workplace.breakCompiler(false);
    workplace.write('நிரல்.பொழில்', 'அச்சிடு("மீண்டும்")\n');
    await printed('மீண்டும்');
    assert.equal(await version(), '4');
});

test('a saved syntax error ends the tool with status 1', async () => {
    workplace.write('நிரல்.பொழில்', 'அச்சிடு("\n');
    assert.deepEqual(await compiler.finished, {status: 1, signal: null});
    assert.ok(compiler.output.includes('பொழில்-102'), compiler.output);
});
