// Every application of the guide, built by the real em++ and opened: it says nothing of errors, and its
// picture beside it is what its page shows.
import assert from 'node:assert/strict';
import {existsSync, mkdirSync, readFileSync, writeFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import pixelmatch from 'pixelmatch';
import {PNG} from 'pngjs';
import {cover} from './support/gallery.mjs';
import {applications, openGuide} from './support/guide.mjs';
import {readPicture} from './support/golden.mjs';

const output = join(process.env.POZHIL_BROWSER_OUTPUT ?? 'browser-output', 'guide');
const tolerance = 0.05;  // of the distance from black to white, for a pixel
const share = 1 / 250;   // of a picture, that may differ by more

let opened;
before(async () => { opened = await openGuide(); });
after(() => opened?.close());

/** Fails if the picture isn't what the page shows, texts apart, and leaves both in the output. */
function holdShown({name, path}, {picture: actual, written}) {
    assert.ok(existsSync(`${path}.png`), `${name} has a picture: scripts/guide_pictures.sh ${name} makes it`);
    const expected = readPicture(readFileSync(`${path}.png`));
    const {width, height} = expected;
    assert.deepEqual([width, height], [actual.width, actual.height], `the size of ${name}.png`);
    for (const picture of [expected, actual]) cover(picture, {left: 0, top: 0, width, height}, written);
    const difference = new PNG({width, height});
    const pixels = pixelmatch(expected.data, actual.data, difference.data, width, height, {threshold: tolerance});
    if (pixels <= width * height * share) return;
    mkdirSync(dirname(join(output, name)), {recursive: true});
    for (const [kind, picture] of Object.entries({expected, actual, difference})) {
        writeFileSync(join(output, `${name}.${kind}.png`), PNG.sync.write(picture));
    }
    assert.fail(`the picture of ${name} differs in ${pixels} of ${width * height} pixels: ` +
        `if that is meant, scripts/guide_pictures.sh ${name} makes it anew; see ${join(output, name)}.*.png`);
}

// POZHIL_SHARD "1/3": each third application, from the second on.
const [shard, shards] = (process.env.POZHIL_SHARD ?? '0/1').split('/').map(Number);
const shown = applications().filter((_, at) => at % shards === shard);

test('there are applications', () => assert.ok(shown.length > 0));

for (const application of shown) {
    test(`${application.name} looks like its picture`, async () => {
        const seen = await opened.show(application);
        assert.deepEqual(seen.problems, []);
        holdShown(application, seen);
    });
}
