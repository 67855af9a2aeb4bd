// What lies behind a page: a film that really plays, behind the page's widgets and no others.
import assert from 'node:assert/strict';
import {mkdirSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import {launch, openPage, photograph, pixel, press, until} from './support/browser.mjs';
import {makeFilm} from './support/film.mjs';
import {tap, telephone} from './support/telephone.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const application = (name, header, other) => `வலைதளம் ${name}தளம்(
    தலைமை(
        பக்கம்: "${name}"
        ${header}
    )
    குமரி(
        நெடுவரிசை(
            பெட்டி(
                அகலம்: 100, உயரம்: 100, பெட்டி_பாணி(பின்னணி: "#C62828")
                அழுத்தினால்: வினை(): செல்க("${other}")
            )
        )
    )
    வரையறை()
)
`;
const film = [46, 125, 50], red = [198, 40, 40], plain = [255, 243, 224];
const windowed = {viewport: {width: 400, height: 300}, screen: {width: 1920, height: 1080}};

let workplace, compiler, browser;

before(async () => {
    browser = await launch();
    workplace = makeWorkplace();
    mkdirSync(join(workplace.work, 'assets'));
    writeFileSync(join(workplace.work, 'assets/film.mp4'), await makeFilm(browser, '#2E7D32'));
    workplace.write('நிரல்.பொழில்', application('காட்டு', 'பின்னணிகாணொளி: "assets/film.mp4"', 'வெற்று') +
        application('வெற்று', 'பின்னணி: "#FFF3E0"', 'காட்டு'));
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
});

after(() => tidyUp(browser, compiler, workplace));

const becomes = (page, x, y, colour) => until(async () =>
    (await pixel(page, x, y)).every((channel, i) => Math.abs(channel - colour[i]) <= 4), `${colour} at ${x}, ${y}`);

/** Opens the application, and waits until the film shows in the corners of the window. */
async function open(options) {
    const page = await openPage(browser, options);
    await page.goto(address);
    const {width, height} = options.viewport;
    for (const [x, y] of [[width - 1, 0], [0, height - 1], [width - 1, height - 1]]) await becomes(page, x, y, film);
    return page;
}

const player = page => page.evaluate(() => {
    const {currentTime, paused, muted, loop, duration} = document.getElementById('pozhilVideo');
    return {currentTime, paused, muted, loop, duration};
});
const noProblems = page => assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);

test('a film plays behind the widgets of its page, over and over, without a sound', async () => {
    const page = await open(windowed);
    await becomes(page, 50, 50, red);
    const {paused, muted, loop} = await player(page);
    assert.deepEqual({paused, muted, loop}, {paused: false, muted: true, loop: true});
    const seen = new Set();
    await until(async () => seen.add((await player(page)).currentTime).size > 3, 'the film to go on');
    assert.ok(page.printed.includes('காணொளி வெற்றிகரமாக லோட் செய்யப்பட்டது!'), page.printed.join('\n'));
    await photograph(page, 'film_behind_page');

    await press(page, 50, 50);
    await becomes(page, 300, 200, plain);
    await press(page, 50, 50);
    await becomes(page, 300, 200, film);
    noProblems(page);
    await page.context().close();
});

test('the film follows the window', async () => {
    const page = await open(windowed);
    await page.setViewportSize({width: 520, height: 340});
    await becomes(page, 519, 339, film);
    await becomes(page, 50, 50, red);
    await page.context().close();
});

test('the film fills a telephone, and a touch leaves it and comes back', async () => {
    const page = await open(telephone());
    await photograph(page, 'film_on_telephone');
    await tap(page, 50, 50);
    await becomes(page, 300, 700, plain);
    await tap(page, 50, 50);
    await becomes(page, 300, 700, film);
    noProblems(page);
    await page.context().close();
});
