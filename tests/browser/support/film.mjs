// A film of one colour, made by the browser's own recorder.

/** The bytes of a film that shows `colour` for a moment. */
export async function makeFilm(browser, colour) {
    const page = await browser.newPage();
    const bytes = await page.evaluate(async colour => {
        const canvas = document.createElement('canvas');
        [canvas.width, canvas.height] = [64, 36];
        const context = canvas.getContext('2d');
        const recorder = new MediaRecorder(canvas.captureStream(20), {mimeType: 'video/webm;codecs=vp8'});
        const parts = [];
        const stopped = new Promise(resolve => { recorder.onstop = resolve; });
        recorder.ondataavailable = ({data}) => parts.push(data);
        recorder.start();
        for (let frame = 0; frame < 20; frame++) {
            context.fillStyle = colour;
            context.fillRect(0, 0, canvas.width, canvas.height);
            await new Promise(resolve => setTimeout(resolve, 40));
        }
        recorder.stop();
        await stopped;
        return [...new Uint8Array(await new Blob(parts).arrayBuffer())];
    }, colour);
    await page.close();
    return Buffer.from(bytes);
}
