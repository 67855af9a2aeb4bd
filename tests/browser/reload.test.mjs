// When an open page reloads itself, and when it must not: the server stands in for one that was
// started again, builds, fails to build, is slow or is out of reach.
import assert from 'node:assert/strict';
import {after, afterEach, before, test} from 'node:test';
import {launch, openPage, until} from './support/browser.mjs';
import {readProgram, serveHandPage} from './support/hand_page.mjs';
import {standIn} from './support/stand_in.mjs';

const tiny = {viewport: {width: 200, height: 150}};

// A section of no meaning at the end of it: the same program, but not the same file.
const otherProgram = wasm => Buffer.concat([wasm, Buffer.from([0, 2, 1, 0x61])]);

let program, server, browser, page;

before(async () => {
    const builder = await serveHandPage();
    program = await readProgram(builder.address);
    await builder.stop();
    browser = await launch();
});

after(() => browser?.close());

afterEach(async () => {
    await page.context().close();
    await server.goAway();
});

async function open(state = {}, prepare) {
    server = Object.assign(await standIn(program), state);
    page = await openPage(browser, tiny, prepare);
    await page.goto(server.address, {waitUntil: 'commit'});
}

/** Both looks, the page's own and that of the script at its end, have come `count` times since. */
async function looked(count = 4) {
    const from = server.polls;
    await until(() => server.polls >= from + 2 * count, 'the page to look for the version');
}

const runs = () => page.waitForFunction(() => window.framesDrawn > 0, null, {timeout: 60000});

async function runsAndLooks() {
    await runs();
    await looked(2);
    assert.equal(server.loads, 1);
}

/** It comes once, runs, and has no cause to come again. */
async function reloadsOnce() {
    await until(() => server.loads === 2, 'the page to come again');
    await runs();
    await looked();
    assert.equal(server.loads, 2);
}

async function stays() {
    await looked();
    assert.equal(server.loads, 1);
}

test('a number like its own leaves the page alone', async () => {
    await open();
    await runsAndLooks();
    await stays();
});

test('a greater number', async () => {
    await open();
    await runsAndLooks();
    server.told = server.built = 3;
    await reloadsOnce();
});

test('a smaller number: the tool was started again', async () => {
    await open({told: 5, built: 5});
    await runsAndLooks();
    server.told = server.built = 2;
    await reloadsOnce();
});

test('a number smaller by one, which a failed build would show too', async () => {
    await open({told: 3, built: 3});
    await runsAndLooks();
    server.told = server.built = 2;
    await reloadsOnce();
});

test('the server was gone and is back with the same number', async () => {
    await open();
    await runsAndLooks();
    let refused = 0;
    page.on('requestfailed', request => { if (request.url().endsWith('/version')) refused++; });
    await server.goAway();
    await until(() => refused >= 6, 'the page to miss it');
    await server.comeBack();
    await reloadsOnce();
});

test('one lost answer is not a server that was gone', async () => {
    await open();
    await runsAndLooks();
    for (let i = 0; i < 3; i++) {
        const lost = page.waitForEvent('requestfailed', request => request.url().endsWith('/version'));
        server.trouble['/version'] = 'lost';
        await lost;
        server.trouble = {};
        await looked(2);
    }
    await stays();
});

test('a build that failed leaves the page as it is, until one succeeds', async () => {
    await open();
    await runsAndLooks();
    server.built = 3;
    for (const path of ['/index.js', '/index.wasm', '/index.data']) server.trouble[path] = 'missing';
    await stays();
    server.trouble = {};
    server.told = 3;
    await reloadsOnce();
});

test('a page that comes after a failed build waits for one that succeeds', async () => {
    await open({built: 3, trouble: {'/index.js': 'missing', '/index.wasm': 'missing'}});
    await page.waitForSelector('#notice.failed', {timeout: 60000});
    await stays();
    server.trouble = {};
    await looked();
    assert.equal(server.loads, 1, 'while the build runs, files that are there count for nothing');
    server.told = 3;
    await reloadsOnce();
});

test('a page that comes during a build comes again with what was built', async () => {
    await open({built: 3});
    await runs();
    await stays();
    server.told = 3;
    await reloadsOnce();
});

test('started again, but the first build failed: the old page stays until one succeeds', async () => {
    await open({told: 4, built: 4});
    await runsAndLooks();
    Object.assign(server, {told: 1, built: 2, trouble: {'/index.js': 'missing'}});
    await stays();
    Object.assign(server, {told: 2, built: 2, trouble: {}});
    await reloadsOnce();
});

test('a server that answers late is not gone', async () => {
    await open();
    await runsAndLooks();
    const isLate = request => request.url().endsWith('/version') && request.timing().responseStart > 2500;
    const answered = page.waitForEvent('requestfinished', {predicate: isLate, timeout: 60000});
    server.trouble['/version'] = new Promise(resolve => setTimeout(resolve, 3000));
    await answered;
    server.trouble = {};
    await stays();
});

test('after a long sleep the page stays if its program is the same', async () => {
    await open({}, opened => opened.clock.install());
    await runsAndLooks();
    const compared = page.waitForEvent('requestfinished',
        {predicate: request => request.url().endsWith('/index.wasm'), timeout: 60000});
    await page.clock.fastForward('02:00:00');
    await compared;
    await stays();
});

test('after a long sleep it comes again if the program is another', async () => {
    await open({}, opened => opened.clock.install());
    await runsAndLooks();
    server.program = {...program, '/index.wasm': otherProgram(program['/index.wasm'])};
    await page.clock.fastForward('02:00:00');
    await reloadsOnce();
});
