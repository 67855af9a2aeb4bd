// The font files that every application loads by their names, in place of which this machine's stand.
import {copyFileSync, mkdirSync} from 'node:fs';
import {join} from 'node:path';

const tamil = '/usr/share/fonts/truetype/noto/NotoSansTamil-Regular.ttf';

/** Puts them into the folder of an application. */
export function copyFonts(work) {
    mkdirSync(join(work, 'assets', 'font'), {recursive: true});
    for (const name of ['Coiny-Regular', 'Tamil-Regular']) {
        copyFileSync(tamil, join(work, 'assets/font', `${name}.ttf`));
    }
}
