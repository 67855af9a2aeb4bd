/** What a page says when the browser took its drawing back: no program does that. */
export const lossOfDrawing = 'the browser lost its drawing';
