// Where the companion is, and the compiler beside it.
'use strict';

const {accessSync, constants, realpathSync, statSync} = require('node:fs');
const {homedir} = require('node:os');
const path = require('node:path');

function isProgram(file) {
    try {
        accessSync(file, constants.X_OK);
        return statSync(file).isFile();
    } catch {
        return false;
    }
}

/**
 * The file of a program that is given by a path or a bare name; undefined if there is none. Editors that a
 * desktop starts often don't know ~/.local/bin, where the compiler is installed for one user.
 */
function programAt(wish, search = process.env.PATH ?? '') {
    const named = wish.replace(/^~(?=\/)/, homedir());
    if (named.includes('/')) return path.isAbsolute(named) && isProgram(named) ? named : undefined;
    const folders = [...search.split(path.delimiter).filter(path.isAbsolute), path.join(homedir(), '.local/bin')];
    return folders.map(folder => path.join(folder, named)).find(isProgram);
}

/** The compiler that stands beside a companion; undefined if there is none. */
function compilerBeside(companion) {
    const folders = [path.dirname(companion), path.dirname(realpathSync(companion))];
    return folders.flatMap(folder => ['பொழில்', 'pozhil'].map(name => path.join(folder, name))).find(isProgram);
}

module.exports = {programAt, compilerBeside};
