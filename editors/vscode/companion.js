// The companion as a language server: found, started, shown, started again.
'use strict';

const {spawn} = require('node:child_process');
const vscode = require('vscode');
const {LanguageClient, CloseAction, ErrorAction, State} = require('vscode-languageclient/node');
const {programAt} = require('./places');

const selector = [{language: 'pozhil', scheme: 'file'}, {language: 'pozhil', scheme: 'untitled'}];

const missingText = 'பொழில்-துணை கிடைக்கவில்லை. பொழிலின் scripts/install.sh-ஐ இயக்கி நிறுவு, அல்லது துணையின் இடத்தை அமைப்புகளில் சொல்.';
const brokenText = 'பொழில்-துணை வேலை செய்யவில்லை. அது இந்த நீட்சியோடு சேர்ந்த பதிப்புதானா எனப் பார்.';
const openSettings = 'அமைப்பைத் திற';
const tryAgain = 'மீண்டும் முயல்';

/** How often within how many milliseconds a server that ends is started again. */
const mostEnds = 3;
const periodOfEnds = 180_000;

/** The library speaks English in windows; its words go to the log alone. */
class QuietClient extends LanguageClient {
    error(message, data) {
        super.error(message, data, false);
    }

    /** Of a server that ends before it answers, the library drops this promise and rejects it nevertheless. */
    createOnStartPromise() {
        const [promise, ...rest] = super.createOnStartPromise();
        promise.catch(() => {});
        return [promise, ...rest];
    }

    /** The library itself stops one that couldn't start, and doesn't look whether that can be done. */
    async stop(...rest) {
        await super.stop(...rest).catch(() => {});
    }
}

/** Of a request that can't be written the library leaves the failure to nobody; it hears of the end by itself. */
function keepWritesQuiet(stream) {
    const write = stream.write.bind(stream);
    stream.write = (...words) => {
        const done = words.pop();
        return write(...words, () => done());
    };
}

class Companion {
    constructor() {
        this.status = vscode.languages.createLanguageStatusItem('pozhil.companion', selector);
        this.status.name = 'பொழில்-துணை';
        this.status.command = {command: 'pozhil.restart', title: 'மீண்டும் தொடங்கு'};
        this.log = vscode.window.createOutputChannel('பொழில்-துணை');
        this.turn = Promise.resolve();
        this.ends = [];
    }

    /** The companion's file; without one the user is told, and it is undefined. */
    find() {
        const found = programAt(vscode.workspace.getConfiguration('pozhil').get('companion.path', 'pozhil-thunai'));
        if (!found) this.tell(missingText, 'துணை இல்லை');
        return found;
    }

    start() {
        return this.inTurn(() => this.startNow());
    }

    stop() {
        this.dropMute();
        return this.inTurn(() => this.stopNow());
    }

    restart() {
        this.ends = [];
        this.dropMute();
        return this.inTurn(async () => {
            await this.stopNow();
            await this.startNow();
        });
    }

    /** A server that doesn't answer isn't waited for. */
    dropMute() {
        if (this.process && !this.hasRun) this.process.kill();
    }

    dispose() {
        this.status.dispose();
        this.log.dispose();
    }

    /** Settings may change while a server is about to start: one after another. */
    inTurn(action) {
        this.turn = this.turn.then(action, action);
        return this.turn;
    }

    async startNow() {
        const command = this.find();
        if (!command) return;
        const transliteration = vscode.workspace.getConfiguration('pozhil').get('transliteration', true);
        this.client = new QuietClient('pozhil', 'பொழில்-துணை', async () => this.launch(command), {
            documentSelector: selector,
            initializationOptions: {transliteration},
            outputChannel: this.log,
            errorHandler: {
                error: () => ({action: ErrorAction.Continue, handled: true}),
                closed: () => this.answerEnd(),
            },
            initializationFailedHandler: () => false,
        });
        this.hasRun = false;
        const ended = new Promise((_, reject) => this.failStart = reject);
        this.client.onDidChangeState(({newState}) => this.showState(newState));
        try {
            await Promise.race([this.client.start(), ended]);
        } catch {
            this.tell(brokenText, 'துணை நின்றுவிட்டது');
        }
    }

    launch(command) {
        this.process = spawn(command, ['lsp']);
        this.process.on('error', () => this.failStart());
        keepWritesQuiet(this.process.stdin);
        return this.process;
    }

    async stopNow() {
        const client = this.client;
        this.client = undefined;
        // One that never ran can't be stopped.
        if (client?.state === State.Running) await client.stop();
    }

    /** The server ended by itself. */
    answerEnd() {
        if (!this.hasRun) {
            this.failStart();
            return {action: CloseAction.DoNotRestart, handled: true};
        }
        const now = Date.now();
        this.ends = [...this.ends.filter(time => now - time < periodOfEnds), now];
        if (this.ends.length <= mostEnds) return {action: CloseAction.Restart, handled: true};
        this.tell(brokenText, 'துணை நின்றுவிட்டது');
        return {action: CloseAction.DoNotRestart, handled: true};
    }

    showState(state) {
        this.status.busy = state === State.Starting;
        if (state === State.Running) {
            this.hasRun = true;
            this.status.severity = vscode.LanguageStatusSeverity.Information;
            this.status.text = '$(check) துணை இயங்குகிறது';
        } else if (state === State.Starting) {
            this.status.text = 'துணை தொடங்குகிறது';
        }
    }

    tell(text, short) {
        this.status.busy = false;
        this.status.severity = vscode.LanguageStatusSeverity.Warning;
        this.status.text = `$(warning) ${short}`;
        // What is asked here is answered whenever the user likes, so nobody waits for it.
        vscode.window.showWarningMessage(text, openSettings, tryAgain).then(choice => {
            if (choice === openSettings) {
                vscode.commands.executeCommand('workbench.action.openSettings', 'pozhil.companion.path');
            } else if (choice === tryAgain) {
                this.restart();
            }
        });
    }
}

module.exports = {Companion};
