// What is prepared for em++: the compiler hands it over, it spares em++ the headers, the program is
// the same, and where it doesn't fit a build goes on without.
import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {
    chmodSync, closeSync, copyFileSync, cpSync, existsSync, mkdirSync, openSync, readFileSync, renameSync, rmSync, statSync,
    utimesSync, writeFileSync, writeSync,
} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {launch, openPage, press, until} from './support/browser.mjs';
import {copyFonts} from './support/fonts.mjs';
import {seeFrame} from './support/frames.mjs';
import {compare, readPicture, shapes} from './support/golden.mjs';
import {readProgram} from './support/hand_page.mjs';
import {standIn} from './support/stand_in.mjs';
import {address, makeWorkplace, start} from './support/tool.mjs';

const checkout = join(dirname(fileURLToPath(import.meta.url)), '..', '..');
const executableDirectory = process.env.POZHIL_EXECUTABLE_DIR;
const example = join(checkout, 'examples', 'web');
const patience = 180;  // seconds, on a machine that does much else

const workplace = makeWorkplace();
let browser;

after(async () => {
    await browser?.close();
    workplace.remove();
});

/** One build of கணக்கி.பொழில் by the compiler in `home`: how often em++ ran, its flags, its program. */
async function build(home) {
    copyFonts(workplace.work);
    copyFileSync(join(example, 'கணக்கி.பொழில்'), join(workplace.work, 'கணக்கி.பொழில்'));
    copyFileSync(join(example, 'assets', 'கோலம்.svg'), join(workplace.work, 'assets', 'கோலம்.svg'));
    rmSync(join(workplace.root, 'times'), {force: true});
    const compiler = start(join(home, 'பொழில்'), ['கணக்கி.பொழில்'], workplace);
    try {
        await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', patience);
        assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
        await until(() => fetch(address).then(() => true, () => false), 'the server');
        return {
            runs: workplace.compilerTimes().length / 2,
            flags: workplace.lastFlags(),
            words: workplace.lastCompilation().words,
            program: await readProgram(address),
        };
    } finally {
        compiler.stop('SIGKILL');
        await compiler.finished;
    }
}

/** Of the text alone with these flags in the environment: the headers that clang reads, and the bytes of the object. */
function compiled(words, flags) {
    const listing = join(workplace.root, 'listing'), object = join(workplace.root, flags ? 'warmed.o' : 'bare.o');
    const command = [words[0], '-c', ...words.filter(word => /^-(I|std=|finput)/.test(word)), '-H', '-o', object];
    execFileSync('bash', ['-c', 'em++ "$@" 2>"$0"', listing, ...command],
        {env: {...process.env, EMCC_CFLAGS: flags.replace(/ '[^']*\.o'/g, '')}});
    const headers = readFileSync(listing, 'utf8').split('\n').filter(line => /^\.+ /.test(line))
        .map(line => line.replace(/^\.+ /, ''));
    return {headers, object, bytes: statSync(object).size};
}

/** The same command in a bare environment; of the text what was compiled so. */
function buildBare({words, program}, object) {
    const linked = words.map(word => word === words[0] ? object : word);
    execFileSync('em++', linked, {cwd: workplace.work, env: {...process.env, EMCC_CFLAGS: ''}});
    const bare = {'/': program['/']};
    for (const name of ['index.js', 'index.wasm', 'index.data']) {
        bare[`/${name}`] = readFileSync(join(workplace.work, 'வெளியீடு', name));
    }
    return bare;
}

/** What the page shows at first and after three clicks, and what the program printed. */
async function watch(program) {
    const server = await standIn(program);
    try {
        const page = await openPage(browser);
        await page.goto(server.address);
        await until(() => page.evaluate(() => {
            const layer = document.getElementById('textCanvas');
            return layer && layer.getContext('2d').getImageData(0, 0, layer.width, layer.height).data.some(byte => byte > 0);
        }).catch(() => false), 'the texts', patience);
        const pictures = [await shapes(page)];
        const texts = [];
        const readTexts = () => seeFrame(page, () => page.locator('#textCanvas').screenshot());
        texts.push(await readTexts());
        for (let i = 0; i < 3; i++) await press(page, 713, 468);
        pictures.push(await shapes(page));
        texts.push(await readTexts());
        await page.context().close();
        return {pictures, texts, printed: page.printed, problems: page.problems};
    } finally {
        await server.goAway();
    }
}

const names = list => list.map(({name, module = ''}) => `${module} ${name}`).sort();

let ours, bareObject;

test('the compiler hands it over', async () => {
    ours = await build(executableDirectory);
    assert.equal(ours.runs, 1);
    assert.match(ours.flags, /^-include '.*\/திரட்டு\/warmed_web\/headers\.h' '.*\/instances\.o' '.*\/runtime\.o'$/);
});

test('em++ reads no header of the standard library, and compiles a fifth of what it would', () => {
    const standard = headers => headers.filter(path => path.includes('/c++/') || path.includes('nano'));
    const bare = compiled(ours.words, ''), warmed = compiled(ours.words, ours.flags);
    assert.deepEqual(standard(warmed.headers).filter(path => !path.endsWith('/nanovg/iostream')), []);
    assert.ok(standard(bare.headers).length > 100, 'a bare build reads them all');
    bareObject = bare.object;
    assert.ok(warmed.bytes < bare.bytes / 5, `${warmed.bytes} bytes, else ${bare.bytes}`);
});

test('the program is the one of a bare build', async () => {
    const bare = buildBare(ours, bareObject);
    const [module, other] = await Promise.all([ours.program, bare].map(built => WebAssembly.compile(built['/index.wasm'])));
    assert.deepEqual(names(WebAssembly.Module.imports(module)), names(WebAssembly.Module.imports(other)));
    const exported = new Set(names(WebAssembly.Module.exports(module)));
    for (const name of names(WebAssembly.Module.exports(other))) assert.ok(exported.has(name), name);
    assert.ok(ours.program['/index.wasm'].length < 1.1 * bare['/index.wasm'].length, 'nothing idle is carried along');

    browser = await launch();
    const shown = await watch(ours.program);
    const expected = await watch(bare);
    assert.deepEqual(shown.printed, expected.printed);
    assert.deepEqual(shown.problems, expected.problems);
    assert.ok(!expected.texts[0].equals(expected.texts[1]), 'the clicks count');
    for (const look of [0, 1]) {
        for (const part of ['pictures', 'texts']) {
            const {pixels} = compare(readPicture(expected[part][look]), readPicture(shown[part][look]));
            assert.equal(pixels, 0, `${part}, look ${look}`);
        }
    }
});

test('it is made in any folder, and a build goes on without it when it is damaged or moved', async () => {
    const home = join(workplace.root, "என் 'வீடு'");
    mkdirSync(join(home, 'திரட்டு'), {recursive: true});
    copyFileSync(join(executableDirectory, 'பொழில்'), join(home, 'பொழில்'));
    chmodSync(join(home, 'பொழில்'), 0o755);
    for (const folder of ['உள்ளடக்கம்', 'src']) cpSync(join(checkout, folder), join(home, folder), {recursive: true});
    for (const object of ['error_handler_web.o', 'nanovg_web.o']) {
        copyFileSync(join(checkout, 'திரட்டு', object), join(home, 'திரட்டு', object));
    }
    execFileSync('bash', [join(checkout, 'scripts', 'warm_web.sh'), home], {stdio: 'ignore'});
    const warmed = join(home, 'திரட்டு', 'warmed_web');
    assert.ok(existsSync(join(warmed, 'fits')));
    const whole = await build(home);
    assert.equal(whole.runs, 1);
    assert.ok(whole.flags.includes('headers.h'), whole.flags);
    assert.deepEqual(whole.program['/index.wasm'], ours.program['/index.wasm']);

    // Of the same size and time, so that only clang can tell.
    const headers = join(warmed, 'headers.h.pch');
    const {atime, mtime, size} = statSync(headers);
    const file = openSync(headers, 'r+');
    writeSync(file, Buffer.alloc(size - 1000), 0, size - 1000, 1000);
    closeSync(file);
    utimesSync(headers, atime, mtime);
    const damaged = await build(home);
    assert.equal(damaged.runs, 2);
    assert.equal(damaged.flags, '');

    renameSync(home, join(workplace.root, 'வேறு வீடு'));
    const moved = await build(join(workplace.root, 'வேறு வீடு'));
    assert.equal(moved.runs, 1);
    assert.equal(moved.flags, '');
    assert.deepEqual(moved.program['/index.wasm'], damaged.program['/index.wasm']);
});
