// Golden pictures: what the browser shows beside what it is to show, a committed PNG. A picture holds
// if no more than a few pixels differ by more than a shade; smoothed edges don't count.
import {existsSync, mkdirSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import pixelmatch from 'pixelmatch';
import {PNG} from 'pngjs';
import {shootAtRest} from './frames.mjs';

const committed = join(dirname(fileURLToPath(import.meta.url)), '..', 'golden');
const output = join(process.env.POZHIL_BROWSER_OUTPUT ?? 'browser-output', 'golden');
const isRewriting = Boolean(process.env.POZHIL_REWRITE);

const tolerance = 0.05;     // of the distance from black to white, for a pixel
const share = 1 / 50_000;   // of the picture, that may differ by more

// Fonts differ between machines, and so does all that is written: texts are read by themselves.
const withoutText = `
    #textCanvas { visibility: hidden !important; }
    .pozhil-input, .pozhil-input::placeholder { color: transparent !important; }
`;

/** A photograph of the page but for its texts, when nothing moves any more. */
export const shapes = page => shootAtRest(page, {style: withoutText}, {hasTexts: false});

/** The size and the pixels of a PNG. */
export const readPicture = bytes => PNG.sync.read(bytes);

/** How many pixels of two pictures differ, of how many, and a picture of where. Sizes are to agree. */
export function compare(expected, actual) {
    const {width, height} = expected;
    const difference = new PNG({width, height});
    const pixels = pixelmatch(expected.data, actual.data, difference.data, width, height,
        {threshold: tolerance});
    return {pixels, of: width * height, difference};
}

/**
 * Fails in one line if the picture `shot`, a PNG, isn't the golden one of that name, and leaves
 * expected, actual and difference in the output. With POZHIL_REWRITE=1 it becomes the golden one,
 * if it differs.
 */
export function holdPicture(name, shot, {folder = committed, kept = output, rewrite = isRewriting} = {}) {
    const golden = join(folder, `${name}.png`);
    const keep = (kind, bytes) => {
        mkdirSync(kept, {recursive: true});
        writeFileSync(join(kept, `${name}.${kind}.png`), bytes);
    };
    for (const kind of ['expected', 'actual', 'difference']) rmSync(join(kept, `${name}.${kind}.png`), {force: true});

    const trouble = !existsSync(golden) ? 'is missing: POZHIL_REWRITE=1 makes it' : troubleOf(golden, shot, keep);
    if (!trouble) return;
    if (rewrite) {
        mkdirSync(folder, {recursive: true});
        writeFileSync(golden, PNG.sync.write(readPicture(shot), {colorType: 2, deflateLevel: 9}));
        return;
    }
    keep('actual', shot);
    throw new Error(`golden picture '${name}' ${trouble}; see ${join(kept, name)}.*.png`);
}

/** What is wrong with the picture, or nothing. */
function troubleOf(golden, shot, keep) {
    const bytes = readFileSync(golden);
    const [expected, actual] = [readPicture(bytes), readPicture(shot)];
    const size = ({width, height}) => `${width}x${height}`;
    if (size(expected) !== size(actual)) {
        keep('expected', bytes);
        return `is ${size(expected)}, the page ${size(actual)}`;
    }
    const {pixels, of, difference} = compare(expected, actual);
    if (pixels <= of * share) return '';
    keep('expected', bytes);
    keep('difference', PNG.sync.write(difference));
    return `differs in ${pixels} of ${of} pixels`;
}
