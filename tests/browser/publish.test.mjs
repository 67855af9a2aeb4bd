// Examples as visitors get them: published, on a host that knows nothing of the tool, below a path of
// its own, with every other host out of reach. Beside each stands the page of the development server.
import assert from 'node:assert/strict';
import {cpSync, mkdirSync, readFileSync, statSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, describe, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {gzipSync} from 'node:zlib';
import {desk, launch, openPage, photographAtRest, until} from './support/browser.mjs';
import {copyFonts} from './support/fonts.mjs';
import {nextFrames} from './support/frames.mjs';
import {compare, readPicture} from './support/golden.mjs';
import {readProgram} from './support/hand_page.mjs';
import {filesOf, host, named, publish} from './support/publish.mjs';
import {standIn} from './support/stand_in.mjs';
import {address, makeWorkplace, startCompiler} from './support/tool.mjs';
import {noteTexts, pressText, texts} from './support/widget_screen.mjs';

const examples = join(dirname(fileURLToPath(import.meta.url)), '..', '..', 'examples', 'web');
const patience = 300;  // seconds, on a machine that does much else
const program = ['index.js', 'index.wasm', 'index.data'];

let browser;
before(async () => { browser = await launch(); });
after(() => browser?.close());

/** The application as the development server has it, in memory, and as it is published, in a folder. */
async function buildBoth(name, text) {
    const workplace = makeWorkplace();
    cpSync(join(examples, 'assets'), join(workplace.work, 'assets'), {recursive: true});
    copyFonts(workplace.work);
    workplace.write(`${name}.பொழில்`, text);
    const compiler = startCompiler(workplace, `${name}.பொழில்`);
    try {
        await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', patience);
        assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
        await until(() => fetch(address).then(() => true, () => false), 'the server');
        const development = await readProgram(address);
        return {workplace, development, ...await publishTo(workplace, name)};
    } finally {
        compiler.stop('SIGKILL');
        await compiler.finished;
    }
}

async function publishTo(workplace, name) {
    const told = await publish(workplace, `${name}.பொழில்`, 'என் தளம்');
    const folder = join(workplace.work, 'என் தளம்');
    return {told, folder, names: filesOf(folder)};
}

/** A page at `place`, with all that it asks for in vain on `page.lost`; its texts are drawn in their font. */
async function open(place, prepare = async () => {}) {
    const page = await openPage(browser, desk, async page => {
        await page.addInitScript(noteTexts);
        await prepare(page);
    });
    page.lost = [];
    page.on('requestfailed', request => page.lost.push(request.url()));
    page.on('response', answer => { if (answer.status() >= 400) page.lost.push(answer.url()); });
    await page.goto(place);
    await until(() => page.evaluate(() => window.texts?.length > 0 && document.fonts.status === 'loaded'), 'the texts', patience);
    await nextFrames(page);
    return page;
}

/** A photograph, when nothing moves any more. */
const picture = async (page, name) => readPicture(await photographAtRest(page, name));

/** What a visitor of `place` sees at first and after the example's deed, and what went wrong meanwhile. */
async function visit(place, name, kind) {
    const page = await open(place);
    const pictures = [await picture(page, `${name}_${kind}`)];
    await deeds[name](page);
    await page.mouse.move(2, 2);
    await nextFrames(page);
    pictures.push(await picture(page, `${name}_${kind}_used`));
    const fonts = await page.evaluate(() => [...document.fonts].filter(({status}) => status === 'loaded').length);
    await page.context().close();  // it would go on drawing, and take its time from others
    return {pictures, fonts, lost: page.lost, problems: page.problems};
}

/** What is done with each example. */
const deeds = {
    async 'கணக்கி'(page) {
        await pressText(page, 'கூட்டு');
        await until(async () => (await texts(page)).some(({text}) => text === '1'), 'the count', patience);
    },
    async 'கடை'(page) {
        await pressText(page, 'கூடை');
        await until(async () => (await texts(page)).some(({text}) => text === 'கூடை காலி'), 'the other page', patience);
    },
    async 'வினாடிவினா'(page) {
        await pressText(page, '12');
        await until(async () => (await texts(page)).some(({text}) => text === 'சரி!'), 'the answer', patience);
    },
};

for (const name of Object.keys(deeds)) {
    describe(name, () => {
        let built, visited, server, ours;

        before(async () => {
            built = await buildBoth(name, readFileSync(join(examples, `${name}.பொழில்`), 'utf8'));
            visited = await host(built.folder);
            server = await standIn(built.development);
            ours = await visit(visited.address, name, 'published');
        });
        after(async () => {
            await visited?.stop();
            await server?.goAway();
            built?.workplace.remove();
        });

        test('looks and does as under the development server', async () => {
            const theirs = await visit(server.address, name, 'development');
            for (const [i, published] of ours.pictures.entries()) {
                assert.ok(new Set(new Uint32Array(published.data.buffer)).size > 50, 'more than an empty page');
                assert.equal(compare(theirs.pictures[i], published).pixels, 0, `pixels that differ, picture ${i}`);
            }
            assert.ok(compare(...ours.pictures).pixels > 0, 'the deed is seen');
        });

        test('needs no other host, and asks for each file once', async () => {
            assert.deepEqual(ours.problems, []);
            assert.deepEqual(ours.lost, []);
            const asked = [...visited.asked].sort();
            assert.deepEqual(asked, [...new Set(asked)]);
            // A heavier weight comes only where it is written with.
            const bold = named(built.names, 'NotoSansTamil-Bold.ttf');
            assert.deepEqual(asked.filter(file => file !== bold), built.names.filter(file => file !== bold));
            assert.ok(ours.fonts > 0, 'the page writes with its own font');
        });

        test('is smaller than the development build', () => {
            const rows = program.map(kind => {
                const published = readFileSync(join(built.folder, named(built.names, kind)));
                return [kind, ...[built.development[`/${kind}`], published].flatMap(bytes => [bytes.length, gzipSync(bytes).length])];
            });
            const sum = column => rows.reduce((total, row) => total + row[column], 0);
            for (const [kind, plain, gzip, publishedPlain, publishedGzip] of [...rows, ['all', ...[1, 2, 3, 4].map(sum)]]) {
                console.log(`${name} ${kind}: ${publishedPlain} bytes, ${publishedGzip} by gzip; development ${plain}, ${gzip}`);
                assert.ok(publishedPlain <= plain && publishedGzip <= gzip, kind);
            }
            for (const kind of ['index.js', 'index.wasm']) {
                const [, plain,, published] = rows.find(([one]) => one === kind);
                assert.ok(published < 0.7 * plain, kind);
            }
            assert.doesNotMatch(String(readFileSync(join(built.folder, named(built.names, 'index.js')))), /pozhil-browser/);
            for (const file of built.names) assert.ok(built.told.includes(file), file);
        });

        if (name === 'கணக்கி') {
            test('takes no longer for a frame', async () => {
                const pages = [await open(visited.address, lookForNoErrors), await open(server.address, lookForNoErrors)];
                const [published, development] = await frameTimes(pages);
                console.log(`frame: ${published.toFixed(2)} ms, development ${development.toFixed(2)} ms`);
                assert.ok(published <= 1.5 * development + 0.5, `${published} ms, development ${development} ms`);
                for (const page of pages) await page.context().close();
            });

            test('tells a visitor what to do when a file is gone', async () => {
                visited.missing.push(named(built.names, 'index.wasm'));
                const page = await openPage(browser);
                await page.goto(visited.address);
                await page.waitForSelector('#notice.failed button', {timeout: 1000 * patience});
                const notice = await page.textContent('#notice');
                assert.match(notice, /புதுப்பிக்கப்பட்டிருக்கலாம்/);
                assert.doesNotMatch(notice, /முனைய/);
                await page.context().close();
                visited.missing.length = 0;
            });

            test('gets new addresses for what is new alone', async () => {
                const text = readFileSync(join(examples, `${name}.பொழில்`), 'utf8');
                built.workplace.write(`${name}.பொழில்`, text.replace('எத்தனை முறை?', 'எத்தனை தடவை?'));
                const kept = named(built.names, 'index.data');
                const {mtimeMs} = statSync(join(built.folder, kept));
                const {names} = await publishTo(built.workplace, name);
                const changed = names.filter(file => !built.names.includes(file));
                assert.deepEqual(changed, [named(names, 'index.wasm')]);
                assert.equal(names.length, built.names.length, 'what was replaced is gone');
                assert.equal(statSync(join(built.folder, kept)).mtimeMs, mtimeMs);
                const page = await open(visited.address);
                assert.ok((await texts(page)).some(({text}) => text === 'எத்தனை தடவை?'));
                await page.context().close();
            });
        }
    });
}

/** To look for errors is to wait for what draws, and here that is no graphics card: scripts are measured alone. */
const lookForNoErrors = page => page.addInitScript(() => { WebGLRenderingContext.prototype.getError = () => 0; });

/** Median milliseconds of the scripts of a frame on each page, in turn. The frames aren't drawn. */
async function frameTimes(pages, rounds = 3, frames = 20) {
    const times = pages.map(() => []);
    for (let round = 0; round < rounds; round++) {
        for (const [i, page] of pages.entries()) {
            await page.bringToFront();
            times[i].push(...await page.evaluate(wanted => new Promise(resolve => {
                const times = [];
                const request = window.requestAnimationFrame;
                window.requestAnimationFrame = callback => request.call(window, time => {
                    const start = performance.now();
                    callback(time);
                    times.push(performance.now() - start);
                    if (times.length < wanted) return;
                    window.requestAnimationFrame = request;
                    resolve(times);
                });
            }), frames));
        }
    }
    return times.map(all => all.sort((a, b) => a - b)[Math.floor(all.length / 2)]);
}

describe('விருந்தினர்', () => {
    let workplace, published, visited;

    before(async () => {
        workplace = makeWorkplace();
        mkdirSync(join(workplace.work, 'assets'));
        copyFonts(workplace.work);
        // A path with a quote makes a script that can't be read.
        const text = readFileSync(join(examples, 'விருந்தினர்.பொழில்'), 'utf8');
        workplace.write('விருந்தினர்.பொழில்', text.replaceAll('"விருந்து/எண்ணிக்கை"', '"விருந்து\'எண்ணிக்கை"'));
        published = await publishTo(workplace, 'விருந்தினர்');
        visited = await host(published.folder);
    });
    after(async () => {
        await visited?.stop();
        workplace?.remove();
    });

    test('tells what its database needs', () => {
        assert.match(published.told, /https:\/\/your-project-default-rtdb/);
        assert.match(published.told, /firebase-database-compat\.js/);
    });

    test('goes on without the scripts of its database and after one that fails', async () => {
        const page = await open(visited.address);
        assert.equal(page.lost.length, 1, String(page.lost));
        assert.ok(published.told.includes(page.lost[0]), page.lost[0]);
        await pressText(page, 'ஏட்டைத் திற');
        await until(() => page.problems.some(line => line.startsWith('🔥 பொழில் இயக்கநேரப் பிழை (WASM):')), 'a word of it', patience);
        await nextFrames(page, 5);
        assert.ok((await texts(page)).some(({text}) => text.startsWith('தரவுத்தளம் இன்னும்')));
        await page.context().close();
    });
});
