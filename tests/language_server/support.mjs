// A client on the packages of the protocol: starts the server and speaks to it.
import {spawn} from 'node:child_process';
import {setTimeout as sleep} from 'node:timers/promises';
import rpc from 'vscode-jsonrpc/node.js';
import protocol from 'vscode-languageserver-protocol/node.js';

const capabilities = {
    workspace: {workspaceFolders: true},
    textDocument: {
        documentSymbol: {hierarchicalDocumentSymbolSupport: true},
        codeAction: {codeActionLiteralSupport: {codeActionKind: {valueSet: ['quickfix']}}},
        rename: {prepareSupport: true},
        publishDiagnostics: {versionSupport: true},
        hover: {contentFormat: ['markdown']},
    },
};

export class Editor {
    /// Starts a server; `folder` is what the editor has open.
    static async start(folder = null) {
        const editor = new Editor();
        await editor.connection.sendRequest(protocol.InitializeRequest.type, {
            processId: process.pid,
            rootUri: folder === null ? null : uriOf(folder),
            capabilities,
            workspaceFolders: folder === null ? null : [{uri: uriOf(folder), name: 'folder'}],
        }).then((result) => (editor.capabilities = result.capabilities));
        await editor.connection.sendNotification(protocol.InitializedNotification.type, {});
        return editor;
    }

    constructor() {
        this.server = spawn(process.env.POZHIL_LANGUAGE_SERVER, ['மொழிவழங்கி', '--stdio'],
            {stdio: ['pipe', 'pipe', 'inherit']});
        this.ended = new Promise((resolve) => this.server.on('exit', (code, signal) =>
            resolve({code, signal})));
        this.connection = rpc.createMessageConnection(
            new rpc.StreamMessageReader(this.server.stdout),
            new rpc.StreamMessageWriter(this.server.stdin));
        this.connection.onError(() => {});
        this.published = [];
        this.connection.onNotification(protocol.PublishDiagnosticsNotification.type,
            (params) => this.published.push({...params, time: performance.now()}));
        this.connection.listen();
        this.versions = new Map();
    }

    async open(uri, text) {
        this.versions.set(uri, 1);
        await this.connection.sendNotification(protocol.DidOpenTextDocumentNotification.type, {
            textDocument: {uri, languageId: 'pozhil', version: 1, text},
        });
    }

    /// Each change is {range, text}, or {text} for the whole; tells the new version.
    async change(uri, ...changes) {
        const version = this.versions.get(uri) + 1;
        this.versions.set(uri, version);
        await this.connection.sendNotification(protocol.DidChangeTextDocumentNotification.type, {
            textDocument: {uri, version}, contentChanges: changes,
        });
        return version;
    }

    ask(method, uri, line, character, more = {}) {
        return this.connection.sendRequest(`textDocument/${method}`, {
            textDocument: {uri}, position: {line, character}, ...more,
        });
    }

    /// The diagnostics of that version of the document, or of any later one.
    async diagnosticsOf(uri, version = this.versions.get(uri)) {
        return (await until(`the diagnostics of ${uri}`, () => this.published.findLast(
            (entry) => entry.uri === uri && entry.version >= version))).diagnostics;
    }

    /// Waits until what is found in the document is as `holds` wants it.
    async settled(uri, holds) {
        return until(`other diagnostics of ${uri}`, () => {
            const last = this.published.findLast((entry) => entry.uri === uri);
            return last !== undefined && holds(last.diagnostics) && last;
        });
    }

    async stop() {
        await this.connection.sendRequest('shutdown');
        await this.connection.sendNotification('exit');
        return this.ended;
    }
}

/// Polls: what takes milliseconds alone can take seconds on a busy machine.
export async function until(what, look, deadline = 60000) {
    const end = performance.now() + deadline;
    while (performance.now() < end) {
        const found = look();
        if (found) return found;
        await sleep(5);
    }
    throw new Error(`waited in vain for ${what}`);
}

export function uriOf(path) {
    return 'file://' + path.split('/').map(encodeURIComponent).join('/');
}

export const range = (line, from, lastLine, to) =>
    ({start: {line, character: from}, end: {line: lastLine, character: to}});

/// `text` with the edits made: they don't overlap.
export function edited(text, edits) {
    const lines = text.split('\n');
    const offset = ({line, character}) =>
        lines.slice(0, line).reduce((sum, each) => sum + each.length + 1, 0) + character;
    return [...edits]
        .sort((a, b) => offset(b.range.start) - offset(a.range.start))
        .reduce((all, edit) => all.slice(0, offset(edit.range.start)) + edit.newText +
            all.slice(offset(edit.range.end)), text);
}
