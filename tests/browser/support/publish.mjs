// What is published, on a host of this machine: files of a folder below a path, compressed as hosts
// do, each time the same for the same name.
import assert from 'node:assert/strict';
import {existsSync, readFileSync, readdirSync} from 'node:fs';
import {createServer} from 'node:http';
import {extname, join} from 'node:path';
import {gzipSync} from 'node:zlib';
import {start} from './tool.mjs';

const types = {
    '.html': 'text/html; charset=utf-8', '.js': 'text/javascript', '.wasm': 'application/wasm', '.ttf': 'font/ttf',
    '.data': 'application/octet-stream',
};

/** Publishes `source` of the workplace into its folder `folder`; answers what was printed. */
export async function publish(workplace, source, folder) {
    const companion = start(join(process.env.POZHIL_EXECUTABLE_DIR, 'பொழில்-துணை'), ['வெளியிடு', source, folder], workplace);
    const {status} = await companion.finished;
    assert.equal(status, 0, companion.output);
    return companion.output;
}

/** The files of a folder, without those that no visitor asks for. */
export const filesOf = folder => readdirSync(folder).filter(name => !name.startsWith('.')).sort();

/** The one of `names` that is `kind` under whatever digits: "index.js" is index.0123456789abcdef.js. */
export function named(names, kind) {
    const [name, ending] = kind.split('.');
    const found = names.filter(one => new RegExp(`^${name}\\.[0-9a-f]{16}\\.${ending}$`).test(one));
    assert.equal(found.length, 1, `${kind} among ${names}`);
    return found[0];
}

/**
 * Serves `folder` below `path`. `asked` collects the names of the files that were asked for; a name in
 * `missing` isn't there.
 */
export async function host(folder, path = '/என்/தளம்/') {
    const it = {asked: [], missing: []};
    const server = createServer((request, response) => {
        const asked = decodeURI(new URL(request.url, 'http://localhost').pathname);
        const name = asked === path ? 'index.html' : asked.slice(path.length);
        it.asked.push(asked.startsWith(path) ? name : asked);
        const file = join(folder, name);
        if (!asked.startsWith(path) || name.includes('/') || it.missing.includes(name) || !existsSync(file)) {
            return response.writeHead(404, {Connection: 'close'}).end();
        }
        const body = gzipSync(readFileSync(file));
        response.writeHead(200, {
            'Content-Type': types[extname(name)], 'Content-Encoding': 'gzip', 'Content-Length': body.length, Connection: 'close',
        }).end(body);
    });
    await new Promise(resolve => server.listen(0, 'localhost', resolve));
    it.address = `http://localhost:${server.address().port}${encodeURI(path)}`;
    it.stop = () => new Promise(resolve => {
        server.close(resolve);
        server.closeAllConnections();
    });
    return it;
}
