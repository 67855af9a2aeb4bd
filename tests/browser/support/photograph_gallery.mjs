// Builds the gallery and writes a picture of each of its widgets, and where they were, into the
// folder of the pictures. Run by scripts/gallery.sh.
import {mkdirSync, readdirSync, rmSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {PNG} from 'pngjs';
import {launch} from './browser.mjs';
import {buildGallery, cut, goTo, openGallery, pages, pictures, picturesOf, ratio} from './gallery.mjs';
import {tidyUp} from './tool.mjs';

async function photographAll(page) {
    const taken = [];
    for (const name of pages) {
        await goTo(page, name);
        taken.push(...await picturesOf(page, name));
        console.log(`📷 ${name}`);
    }
    return taken;
}

/** Only when all were taken are those of before removed. */
function keep(taken) {
    mkdirSync(pictures, {recursive: true});
    for (const name of readdirSync(pictures)) {
        if (name.endsWith('.png')) rmSync(join(pictures, name));
    }
    const places = {};
    for (const {kind, place, written, shot} of taken) {
        const bytes = PNG.sync.write(cut(shot, place), {colorType: 2, deflateLevel: 9});
        writeFileSync(join(pictures, `${kind}.png`), bytes);
        places[kind] = {place, written};
    }
    const lines = Object.entries(places).map(([kind, row]) => `${JSON.stringify(kind)}: ${JSON.stringify(row)}`);
    writeFileSync(join(pictures, 'இடங்கள்.json'), `{\n${lines.join(',\n')}\n}\n`);
}

let built, browser;
try {
    built = await buildGallery();
    browser = await launch();
    const taken = await photographAll(await openGallery(browser, ratio));
    keep(taken);
    console.log(`🖼️  ${taken.length} படங்கள்: ${pictures}`);
} finally {
    await tidyUp(browser, built?.compiler, built?.workplace);
}
