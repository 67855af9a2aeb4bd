// The guest book among the examples, with a database that speaks the real protocol and with none.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {launch, openPage, photograph, until} from './support/browser.mjs';
import {databasePeer, serveDatabaseScripts} from './support/database_peer.mjs';
import {copyFonts} from './support/fonts.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';
import {noteTexts, pressText, texts} from './support/widget_screen.mjs';

const example = join(dirname(fileURLToPath(import.meta.url)), '../../examples/web/விருந்தினர்.பொழில்');
const desk = {viewport: {width: 1280, height: 720}, screen: {width: 1920, height: 1080}};
const telephone = {viewport: {width: 400, height: 800}, screen: {width: 1920, height: 1080}};

let workplace, compiler, browser, peer;

before(async () => {
    peer = await databasePeer();
    workplace = makeWorkplace();
    copyFonts(workplace.work);
    const source = readFileSync(example, 'utf8').replace(/database_url: "[^"]*"/, `database_url: "${peer.url}"`);
    assert.ok(source.includes(peer.url), 'the example has an address to fill in');
    workplace.write('நிரல்.பொழில்', source);
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => /🌍 பிரவுசர்|404/.test(compiler.output) || compiler.ended, 'the build', 200);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
});
after(async () => {
    await tidyUp(browser, compiler, workplace);
    await peer?.stop();
});

async function open(size, net) {
    const page = await openPage(browser, size, async page => {
        await page.addInitScript(noteTexts);
        await serveDatabaseScripts(page, net);
    });
    await page.goto(address);
    await until(() => page.evaluate(() => window.frames > 1), 'the first frames');
    return page;
}

const shows = (page, wanted) => until(async () => (await texts(page)).some(({text}) => text === wanted),
    `'${wanted}' among the texts`);

async function write(page, name, line) {
    await page.getByPlaceholder('உங்கள் பெயர்').fill(name);
    await page.getByPlaceholder('ஒரு வரி எழுதுங்கள்').fill(line);
    await pressText(page, 'எழுது');
    await shows(page, 'எழுதியாயிற்று, நன்றி!');
}

test('says so while no database answers', async () => {
    const page = await open(desk, {isThere: false});
    await pressText(page, 'ஏட்டைத் திற');
    await shows(page, 'தரவுத்தளம் இன்னும் பதில் சொல்லவில்லை…');
    await photograph(page, 'guest_book_alone');
    await page.context().close();
});

test('keeps what guests write, and shows it to others, the newest first', async () => {
    let page = await open(telephone);
    await until(() => page.printed.length > 0, 'the connection');
    await pressText(page, 'எழுது');
    await shows(page, 'பெயரை எழுதுங்கள்');
    await write(page, 'கண்ணன்', 'முதல் வணக்கம்');
    await shows(page, '— கண்ணன்');
    await write(page, 'வேலன் "ஐ"', 'அது \'இனிது\' \\ இது');
    await shows(page, 'அது ’இனிது’ / இது');
    // A page shows what it wrote before the database has it.
    await until(async () => {
        const {எண்ணிக்கை, பதிவு2} = await peer.value('விருந்து') ?? {};
        return எண்ணிக்கை?.எத்தனை === '2' && பதிவு2;
    }, 'the second line in the database');
    assert.deepEqual(await peer.value('விருந்து'), {
        எண்ணிக்கை: {எத்தனை: '2'},
        பதிவு1: {பெயர்: 'கண்ணன்', சொல்: 'முதல் வணக்கம்'},
        பதிவு2: {பெயர்: 'வேலன் ”ஐ”', சொல்: 'அது ’இனிது’ / இது'},
    });
    await photograph(page, 'guest_book_telephone');
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
    await page.context().close();

    page = await open(desk);
    await until(() => page.printed.length > 0, 'the connection');
    await pressText(page, 'ஏட்டைத் திற');
    await shows(page, 'ஏட்டில் உள்ளவை: 2');
    await shows(page, '— கண்ணன்');
    const y = name => texts(page).then(all => all.find(({text}) => text === name)?.y);
    assert.ok(await y('— வேலன் ”ஐ”') < await y('— கண்ணன்'));
    await photograph(page, 'guest_book_desk');
});
