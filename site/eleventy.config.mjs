// The site: each document becomes a template, and Eleventy puts it into the layout. Environment:
// POZHIL_SITE_DOCUMENTS is the folder in the shape of the checkout whose documents are shown.
import {copyFileSync, existsSync, mkdirSync, writeFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {readDocuments} from './documents.mjs';
import {makeMarkdown, relativeUrl} from './markdown.mjs';
import {indexScript} from './search_index.mjs';
import {sectionsOf} from './sections.mjs';

const require = createRequire(import.meta.url);
const root = process.env.POZHIL_SITE_DOCUMENTS ?? join(dirname(fileURLToPath(import.meta.url)), '..');

/** The letters of the pages where the reader's machine has none for Tamil. */
const fonts = ['Regular', 'Bold'].map(weight => `NotoSansTamil-${weight}.ttf`);
const fontFolder = '/usr/share/fonts/truetype/noto';

/** A list beside the page is of use where there are a few headings and not hundreds. */
function placesOf(sections) {
    const places = sections.filter(({level, id}) => id && level === 2);
    return places.length > 1 ? places : [];
}

function searchRows({url, title}, sections) {
    return sections.map(section => ({
        url: section.id && section.level > 1 ? `${encodeURI(url)}#${encodeURIComponent(section.id)}` : encodeURI(url),
        page: title, title: section.title, text: section.text.join('\n'),
        names: section.names.join('\n'), code: section.code.join('\n'),
    }));
}

function copyInto(folder, from, to) {
    mkdirSync(dirname(join(folder, to)), {recursive: true});
    copyFileSync(from, join(folder, to));
}

export default function (eleventy) {
    const {documents, shelves} = readDocuments(root);
    const {md, pictures} = makeMarkdown(root, documents);
    const rows = [];
    documents.forEach((document, at) => {
        const sections = sectionsOf(md, document);
        rows.push(...searchRows(document, sections));
        eleventy.addTemplate(`${at}.md`, document.text, {
            layout: 'page.njk', permalink: document.url, document, shelves, places: placesOf(sections),
        });
    });

    eleventy.setLibrary('md', md);
    eleventy.addFilter('from', (target, url) => relativeUrl(url, target));
    eleventy.addFilter('place', id => encodeURIComponent(id));
    eleventy.addPassthroughCopy({assets: 'assets'});
    eleventy.addPassthroughCopy({[require.resolve('minisearch').replace(/dist\/.*$/, 'dist/umd/index.js')]: 'assets/minisearch.js'});
    for (const font of fonts) {
        if (existsSync(join(fontFolder, font))) eleventy.addPassthroughCopy({[join(fontFolder, font)]: `assets/${font}`});
    }
    eleventy.on('eleventy.after', ({directories}) => {
        writeFileSync(join(directories.output, 'assets/search-index.js'), indexScript(rows));
        for (const picture of pictures) {
            const from = join(root, picture);
            if (existsSync(from)) copyInto(directories.output, from, picture.replace(/^docs\//, ''));
        }
    });
    return {dir: {input: '.', includes: 'layouts', layouts: 'layouts'}, markdownTemplateEngine: false};
}
