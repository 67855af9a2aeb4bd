// In the place of the module that VS Code gives to extensions: what ours uses does something that a test can
// see, and whatever else the client library touches is there and does nothing.
'use strict';

const {pathToFileURL, fileURLToPath} = require('node:url');

/** What a test sees and sets. */
const seen = {
    warnings: [], // The texts of messages.
    errors: [],
    choice: undefined, // What the user answers.
    commands: new Map(),
    executed: [],
    diagnostics: new Map(),
    status: undefined,
    terminals: [],
    settings: {},
    documents: [],
    active: undefined,
};

const listeners = {};
const event = name => listener => {
    (listeners[name] ??= []).push(listener);
    return {dispose: () => listeners[name].splice(listeners[name].indexOf(listener), 1)};
};
const fire = (name, value) => (listeners[name] ?? []).slice().forEach(listener => listener(value));

/** Anything: may be called, made, asked for parts. */
function nothing() {
    return new Proxy(class {}, {
        get: (target, key) => key === Symbol.toPrimitive ? () => '' : key === 'then' ? undefined
            : key === 'prototype' ? target.prototype : target[key] ??= nothing(),
        apply: () => ({dispose() {}}),
    });
}

/** `parts`, and nothing for what isn't there. */
const withNothing = parts => new Proxy(parts, {get: (target, key) => key in target ? target[key] : target[key] = nothing()});

class EventEmitter {
    constructor() {
        this.listeners = new Set();
        this.event = listener => {
            this.listeners.add(listener);
            return {dispose: () => this.listeners.delete(listener)};
        };
    }
    fire(value) { this.listeners.forEach(listener => listener(value)); }
    dispose() { this.listeners.clear(); }
}

const fileUri = path => ({
    scheme: 'file', fsPath: path, path, toString: () => pathToFileURL(path).href,
    with() { return this; },
});

const message = list => text => {
    list.push(text);
    return Promise.resolve(seen.choice);
};

const vscode = withNothing({
    version: '1.85.0',
    EventEmitter,
    Disposable: class { constructor(end) { this.dispose = end; } static from() { return {dispose() {}}; } },
    CancellationTokenSource: class {
        token = {isCancellationRequested: false, onCancellationRequested: () => ({dispose() {}})};
        cancel() { this.token.isCancellationRequested = true; }
        dispose() {}
    },
    Position: class { constructor(line, character) { Object.assign(this, {line, character}); } },
    Range: class { constructor(...places) { this.places = places; } },
    Diagnostic: class { constructor(range, words) { Object.assign(this, {range, message: words}); } },
    LanguageStatusSeverity: {Information: 0, Warning: 1, Error: 2},
    Uri: {file: fileUri, parse: text => fileUri(fileURLToPath(text))},
    window: withNothing({
        showWarningMessage: message(seen.warnings),
        showErrorMessage: message(seen.errors),
        createOutputChannel: () => ({append() {}, appendLine() {}, show() {}, dispose() {}}),
        createTerminal(options) {
            const terminal = {options, show() { this.isShown = true; }, dispose() { this.isGone = true; fire('closed', this); }};
            seen.terminals.push(terminal);
            return terminal;
        },
        onDidCloseTerminal: event('closed'),
        get activeTextEditor() { return seen.active && {document: seen.active}; },
    }),
    workspace: withNothing({
        workspaceFolders: undefined,
        get textDocuments() { return seen.documents; },
        getConfiguration: section => ({
            get: (name, otherwise) => seen.settings[section ? `${section}.${name}` : name] ?? otherwise,
            inspect: () => undefined,
        }),
        onDidChangeConfiguration: event('settings'),
        onDidOpenTextDocument: event('opened'),
        onDidCloseTextDocument: event('closedDocument'),
        onDidChangeTextDocument: event('changed'),
    }),
    languages: withNothing({
        match: (selector, document) =>
            [selector].flat().some(({language}) => language === document.languageId) ? 10 : 0,
        createLanguageStatusItem: () => seen.status = {dispose() {}},
        createDiagnosticCollection: () => ({
            set: (uri, found) => seen.diagnostics.set(uri.toString(), found),
            delete: uri => seen.diagnostics.delete(uri.toString()),
            clear: () => seen.diagnostics.clear(),
            dispose() {},
        }),
    }),
    commands: withNothing({
        registerCommand: (name, run) => {
            seen.commands.set(name, run);
            return {dispose: () => seen.commands.delete(name)};
        },
        executeCommand: async (...words) => { seen.executed.push(words); },
    }),
});

module.exports = {vscode, seen, fire, fileUri};
