// The applications of the guide, below docs/நிரல்கள்: each is built by the compiler, opened, and shown as
// its picture is to show it. One compiler watches one source for all of them, and one page opens them.
import assert from 'node:assert/strict';
import {cpSync, existsSync, readdirSync, readFileSync, rmSync} from 'node:fs';
import {basename, dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {launch, openPage, until} from './browser.mjs';
import {databasePeer, serveDatabaseScripts} from './database_peer.mjs';
import {copyFonts} from './fonts.mjs';
import {shoot} from './frames.mjs';
import {readPicture} from './golden.mjs';
import {goOn, problems, rest, restWhenDrawn} from './rest.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './tool.mjs';
import {noteTexts, texts} from './widget_screen.mjs';

export const guide = join(dirname(fileURLToPath(import.meta.url)), '..', '..', '..', 'docs', 'நிரல்கள்');
const sourceName = 'நிரல்.பொழில்';
const usualSize = {width: 480, height: 720};

/** A page of a program that doesn't run has no picture: its report is shown instead. */
const refusals = ['report', 'check', 'says', 'err'];

const beside = (path, ending) => `${path}.${ending}`;
const textOf = file => existsSync(file) ? readFileSync(file, 'utf8') : '';

/**
 * All applications, in the order of their chapters: `name` is that of the pages' fences, `path` the file's
 * without its ending.
 */
export function applications() {
    return readdirSync(guide, {recursive: true}).filter(name => name.endsWith('.பொழில்')).sort()
        .map(name => name.slice(0, -'.பொழில்'.length)).map(name => ({name, path: join(guide, name)}))
        .filter(application => /^\s*வலைதளம்/m.test(sourceOf(application)))
        .filter(({path}) => existsSync(beside(path, 'png')) || !refusals.some(ending => existsSync(beside(path, ending))));
}

function sizeOf({path}) {
    const [width, height] = textOf(beside(path, 'size')).split(/\s+/).map(Number);
    return width > 0 && height > 0 ? {width, height} : usualSize;
}

const sourceOf = ({path}) => readFileSync(beside(path, 'பொழில்'), 'utf8');
const hasDatabase = application => sourceOf(application).includes('database_url:');

// ---- Steps ----

/** Clicks on a text, or on the input that hints so. */
async function pressText(page, wanted) {
    const drawn = (await texts(page)).find(({text}) => text === wanted);
    if (drawn) return page.mouse.click(drawn.left + drawn.width / 2, drawn.y + drawn.size / 2);
    const input = page.getByPlaceholder(wanted, {exact: true});
    assert.equal(await input.count(), 1, `'${wanted}' to press; what stands is ${(await texts(page)).map(({text}) => text)}`);
    return input.click();
}

/** The words that begin a step, and what is done with the rest of its line. */
const deeds = {
    async அழுத்து(page, words) {
        const place = /^(\d+) (\d+)$/.exec(words);
        await (place ? page.mouse.click(Number(place[1]), Number(place[2])) : pressText(page, words));
        await goOn(page);
    },
    async தட்டு(page, words) {
        await page.keyboard.insertText(words);
        await goOn(page);
    },
    async காத்திரு(page, words) {
        assert.match(words, /^\d+$/, 'milliseconds to wait');
        await page.waitForTimeout(Number(words));
        await goOn(page, Number(words));
    },
    /** Waits until a text is there: what a database answers has a time of its own. */
    async பார்(page, words) {
        let seen = [];
        await until(async () => {
            await goOn(page);
            seen = (await texts(page)).map(({text}) => text);
            return seen.includes(words);
        }, `to see '${words}'`, 60).catch(error => { throw new Error(`${error.message}; what stands is ${seen}`); });
    },
};

async function takeSteps(page, path) {
    for (const line of textOf(beside(path, 'steps')).split('\n').filter(Boolean)) {
        const [, word, words] = /^(\S+) (.+)$/.exec(line) ?? [];
        assert.ok(deeds[word], `'${line}' of ${basename(path)}.steps begins with ${Object.keys(deeds)}`);
        await deeds[word](page, words);
    }
}

// ---- Pictures ----

/** Where the page is written on. Other fonts make texts longer or shorter: room for that is left. */
async function writing(page) {
    const drawn = (await texts(page)).map(({left, y, width, size}) => {
        const more = 4 + width / 8;
        return {left: left - more, top: y - size * 0.35, width: width + 2 * more, height: size * 1.8};
    });
    const typed = await page.evaluate(() => [...document.getElementsByClassName('pozhil-input')]
        .filter(input => input.style.display !== 'none').map(input => {
            const {left, top, width, height} = input.getBoundingClientRect();
            return {left: left + 4, top: top + 4, width: width - 8, height: height - 8};
        }));
    return [...drawn, ...typed];
}

/**
 * What the page shows when all steps are done and nothing moves: its `picture`, the places that are `written` on,
 * and the `problems` since it was opened.
 */
async function show(page, application) {
    page.problems.length = page.printed.length = 0;
    await page.setViewportSize(sizeOf(application));
    await page.goto(address);
    await rest(page);
    if (hasDatabase(application)) {
        await until(() => page.printed.some(line => line.includes('வெற்றிகரமாக இணைக்கப்பட்டது')), 'the database');
    }
    await page.mouse.move(1, 1);
    await takeSteps(page, application.path);
    await page.evaluate(() => document.activeElement.blur());
    const shot = await shoot(page, {animations: 'disabled'});
    const seen = {picture: readPicture(shot), written: await writing(page), problems: problems(page)};
    await page.goto('about:blank');  // it would draw on, and load itself again, while the next one is built
    return seen;
}

// ---- The compiler ----

/** The files of the folder in which an application lies, but for pictures of pages. What the compiler uses stays. */
function fillFolder(work, folder) {
    for (const name of readdirSync(work).filter(name => name !== sourceName && name !== 'வெளியீடு')) {
        rmSync(join(work, name), {recursive: true});
    }
    const isPage = path => path.endsWith('.png') && existsSync(path.replace(/png$/, 'பொழில்'));
    cpSync(folder, work, {recursive: true, filter: path => !isPage(path)});
    copyFonts(work);
}

const built = /🌍 பிரவுசர்|✅ தளம்/u;
const failed = /🚨|தோல்வி/u;

/**
 * `show(application)` builds one and answers what its page shows; `close()` ends all that was begun. A
 * compiler that ended with a report is started anew for the next one.
 */
export async function openGuide() {
    const workplace = makeWorkplace();
    let compiler, browser, page, peer;

    async function pageOf() {
        browser ??= await launch();
        page ??= await openPage(browser, {viewport: usualSize, screen: {width: 1920, height: 1080}}, async page => {
            await page.addInitScript(noteTexts);
            await restWhenDrawn(page);
            await serveDatabaseScripts(page);
        }, {isOnDemand: false});
        return page;
    }

    /** The source; a database that it names is one of its own, with nothing in it. */
    async function connected(application) {
        await peer?.stop();
        peer = hasDatabase(application) ? await databasePeer() : undefined;
        return sourceOf(application).replace(/database_url: "[^"]*"/, () => `database_url: "${peer.url}"`);
    }

    async function build(application) {
        const source = await connected(application);
        fillFolder(workplace.work, dirname(application.path));
        const isWatching = compiler && !compiler.ended;
        const begin = isWatching ? compiler.output.length : 0;
        workplace.write(sourceName, source);
        if (!isWatching) compiler = startCompiler(workplace, sourceName);
        const said = () => compiler.output.slice(begin);
        await until(() => built.test(said()) || failed.test(said()) || compiler.ended, 'the build', 200);
        assert.ok(built.test(said()), `${application.name} doesn't build: ${said()}`);
    }

    return {
        async show(application) {
            await build(application);
            return show(await pageOf(), application);
        },
        async close() {
            await tidyUp(browser, compiler, workplace);
            await peer?.stop();
        },
    };
}
