// The sites under test: made once for each test file, in the build directory.
import {execFileSync} from 'node:child_process';
import {readFileSync, readdirSync, statSync} from 'node:fs';
import {dirname, join, relative, resolve} from 'node:path';
import {fileURLToPath} from 'node:url';

export const root = join(dirname(fileURLToPath(import.meta.url)), '../../..');
export const samples = join(root, 'tests/site/documents');
const output = process.env.POZHIL_SITE_OUTPUT ?? join(root, 'build/site-tests');

/** Makes a site in a folder `name` of the build directory, of the checkout's documents or of others. */
export function makeSite(name, documents = root) {
    const folder = resolve(output, name);
    execFileSync(join(root, 'scripts/site.sh'), [folder, documents], {stdio: ['ignore', 'ignore', 'pipe']});
    return folder;
}

/** The same, where another test hasn't made it yet. */
export function madeSite(name, documents = root) {
    const folder = resolve(output, name);
    return isFile(join(folder, 'index.html')) ? folder : makeSite(name, documents);
}

/** The paths of all files below `folder` with the ending, as seen from it. */
export function filesOf(folder, ending) {
    return readdirSync(folder, {recursive: true}).filter(name => name.endsWith(ending)).sort();
}

export function pageText(folder, name) {
    return readFileSync(join(folder, name), 'utf8');
}

function unescaped(text) {
    return text.replaceAll('&quot;', '"').replaceAll('&lt;', '<').replaceAll('&gt;', '>').replaceAll('&#39;', "'").replaceAll('&amp;', '&');
}

/** The values of one attribute, in the page's tags and not in what it shows. */
export function attributes(html, name) {
    const tags = html.match(/<[a-z][^>]*>/g) ?? [];
    return tags.flatMap(tag => [...tag.matchAll(new RegExp(`\\s${name}="([^"]*)"`, 'g'))].map(([, value]) => unescaped(value)));
}

const isFile = path => statSync(path, {throwIfNoEntry: false})?.isFile() ?? false;

/** Each address of the site's pages and styles that leads nowhere, or out of the site: [page, address]. */
export function lostAddresses(folder) {
    const places = new Map();
    const placesOf = path => {
        if (!places.has(path)) places.set(path, new Set(attributes(readFileSync(path, 'utf8'), 'id')));
        return places.get(path);
    };
    const leads = (page, address) => {
        if (address === 'data:,') return true;
        if (/^[a-z][a-z0-9+.-]*:|^\/|\?/i.test(address)) return false;
        const [path, place] = address.split('#').map(decodeURIComponent);
        const target = path === '' ? join(folder, page) : join(folder, dirname(page), path);
        if (relative(folder, target).startsWith('..') || !isFile(target)) return false;
        return place === undefined || placesOf(target).has(place);
    };
    const lost = [];
    for (const page of filesOf(folder, '.html')) {
        const html = pageText(folder, page);
        for (const address of [...attributes(html, 'href'), ...attributes(html, 'src')]) {
            if (!leads(page, address)) lost.push([page, address]);
        }
    }
    for (const style of filesOf(folder, '.css')) {
        for (const [, address] of pageText(folder, style).matchAll(/url\("?([^")]*)"?\)/g)) {
            if (!leads(style, address)) lost.push([style, address]);
        }
    }
    return lost;
}
