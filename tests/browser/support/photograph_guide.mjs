// Photographs the pages of the guide's applications into their pictures: those of the names that follow,
// such as 15/வணக்கம், or all. Run by scripts/guide_pictures.sh.
import {writeFileSync} from 'node:fs';
import {PNG} from 'pngjs';
import {applications, openGuide} from './guide.mjs';

const names = process.argv.slice(2);
const chosen = applications().filter(({name}) => names.length === 0 || names.includes(name));
const unknown = names.filter(name => !chosen.some(application => application.name === name));
if (unknown.length > 0) throw new Error(`no applications: ${unknown}`);

const opened = await openGuide();
try {
    for (const application of chosen) {
        const {picture, problems} = await opened.show(application);
        if (problems.length > 0) throw new Error(`${application.name}: ${problems.join('\n')}`);
        writeFileSync(`${application.path}.png`, PNG.sync.write(picture, {colorType: 2, deflateLevel: 9}));
        console.log(`📷 ${application.name}`);
    }
} finally {
    await opened.close();
}
