// The elements of the page that take what is typed, as the browser has them.

/** All that an application has made, in the order of their making; a number at an id's end is `#`. */
export const inputs = page => page.evaluate(() =>
    Array.from(document.querySelectorAll('input.pozhil-input, textarea.pozhil-input'), element => {
        const {left, top} = element.getBoundingClientRect();
        const style = getComputedStyle(element);
        return {
            id: element.id.replace(/\d+$/, '#'), tag: element.tagName.toLowerCase(), hint: element.placeholder,
            x: left, y: top, width: parseFloat(element.style.width), height: parseFloat(element.style.height),
            isShown: style.display === 'block' && style.opacity === '1', layer: style.zIndex,
            background: style.backgroundColor, colour: style.color, border: style.borderTopWidth,
            radius: style.borderTopLeftRadius, font: style.fontFamily, size: style.fontSize,
            padding: [style.paddingTop, style.paddingLeft].join(' '), boxes: style.boxSizing,
            resize: element.style.resize, outline: element.style.outlineStyle, moves: element.style.transition,
        };
    }));
