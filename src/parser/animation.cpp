// The animation block of a widget. It is a literal form: values are read straight from tokens, and
// indentation in it is free, without any count.
#include "number_text.h"
#include "parser/parser.h"

namespace {

/// Takes off one pair of surrounding quotes.
std::string withoutQuotes(const std::string& text) {
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

bool isText(const Token& token) {
    return token.type == TokenType::STRING || token.type == TokenType::IDENTIFIER;
}

/// The target words that move by an amount.
struct DeltaRow {
    TokenType kind;
    std::optional<AnimationDelta> AnimationTargetNode::*field;
};
const DeltaRow kDeltas[] = {
    {TokenType::FADE_IN, &AnimationTargetNode::fadeIn},
    {TokenType::FADE_OUT, &AnimationTargetNode::fadeOut},
    {TokenType::GROW, &AnimationTargetNode::grow},
    {TokenType::SHRINK, &AnimationTargetNode::shrink},
    {TokenType::SLIDE_LEFT, &AnimationTargetNode::slideLeft},
    {TokenType::SLIDE_RIGHT, &AnimationTargetNode::slideRight},
    {TokenType::SLIDE_UP, &AnimationTargetNode::slideUp},
    {TokenType::SLIDE_DOWN, &AnimationTargetNode::slideDown},
    {TokenType::ROTATE_CLOCKWISE, &AnimationTargetNode::rotateClockwise},
    {TokenType::ROTATE_ANTICLOCKWISE, &AnimationTargetNode::rotateAnticlockwise},
    {TokenType::MOVE_HORIZONTAL, &AnimationTargetNode::moveHorizontal},
    {TokenType::MOVE_VERTICAL, &AnimationTargetNode::moveVertical},
    {TokenType::ANIMATE_WIDTH, &AnimationTargetNode::width},
    {TokenType::ANIMATE_HEIGHT, &AnimationTargetNode::height},
    {TokenType::ANIMATE_CURVE, &AnimationTargetNode::curveRadius},
};

}  // namespace

/// animation = "(" { entry [ "," ] } ")"
/// Raises 204 at the opening parenthesis's line.
std::unique_ptr<AnimationNode> Parser::parseAnimation() {
    auto animation = std::make_unique<AnimationNode>();
    const int line = consume(TokenType::LEFT_PAREN, "பொழில்-203").line;
    while (!check(TokenType::RIGHT_PAREN) && !is_at_end()) {
        skipLayout();
        if (check(TokenType::RIGHT_PAREN) || is_at_end()) break;
        parseAnimationEntry(*animation);
        skipLayout();
        takeComma();
        skipLayout();
    }
    skipLayout();
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return animation;
}

/// entry = "நிலைமை" ":" text | "காலம்" ":" number | "வகை" ":" text | "இலக்கு" [ ":" ] target-group
/// A trigger or duration of another kind is passed over, and so is the one token behind an unknown
/// word. Raises 262 for a curve that is no text.
void Parser::parseAnimationEntry(AnimationNode& animation) {
    const Token key = advance();
    skipLayout();
    if (key.text == "நிலைமை") {
        expectColon();
        skipLayout();
        const Token value = advance();
        if (isText(value)) animation.trigger = withoutQuotes(value.text);
    } else if (key.text == "காலம்" || key.type == TokenType::DURATION) {
        expectColon();
        skipLayout();
        const Token value = advance();
        if (value.type == TokenType::NUMBER) animation.duration = floatOf(value.text);
    } else if (key.text == "வகை" || key.type == TokenType::ANIMATION_CURVE) {
        expectColon();
        skipLayout();
        if (!isText(peek())) பிழை("பொழில்-262", peek().line);
        animation.curve = withoutQuotes(advance().text);
    } else if (key.text == "இலக்கு" || key.type == TokenType::TARGET) {
        parseTargetGroup(animation);
    } else {
        if (check(TokenType::COLON)) {
            advance();
            skipLayout();
        }
        advance();
    }
}

/// target-group = "(" { target [ "," ] } ")"
/// A further group adds to the same targets.
void Parser::parseTargetGroup(AnimationNode& animation) {
    if (check(TokenType::COLON)) advance();
    skipLayout();
    openParenthesis();
    while (!check(TokenType::RIGHT_PAREN) && !is_at_end()) {
        skipLayout();
        if (check(TokenType::RIGHT_PAREN) || is_at_end()) break;
        parseTarget(animation);
        skipLayout();
        takeComma();
        skipLayout();
    }
    skipLayout();
    consume(TokenType::RIGHT_PAREN, "பொழில்-204");
}

/// target = any-word ":" ( number | text )
void Parser::parseTarget(AnimationNode& animation) {
    const std::string name = advance().text;
    skipLayout();
    expectColon();
    skipLayout();
    const Token value = advance();
    if (value.type == TokenType::NUMBER) {
        animation.numberTargets[name] = floatOf(value.text);
    } else if (isText(value)) {
        animation.stringTargets[name] = withoutQuotes(value.text);
    }
}

AnimationTargetNode Parser::parseAnimationTarget() {
    AnimationTargetNode target;
    if (check(TokenType::TARGET)) advance();
    if (check(TokenType::LEFT_PAREN)) advance();
    while (!check(TokenType::RIGHT_PAREN) && !is_at_end()) {
        parseTargetWord(target);
        takeComma();
    }
    if (check(TokenType::RIGHT_PAREN)) advance();
    return target;
}

void Parser::parseTargetWord(AnimationTargetNode& target) {
    const TokenType kind = advance().type;
    if (kind == TokenType::FADE_SLIDE) {
        target.fadeSlide = true;
    } else if (kind == TokenType::FLY) {
        target.fly = true;
    } else if (kind == TokenType::ANIMATE_COLOUR) {
        if (check(TokenType::COLON)) advance();
        target.color = withoutQuotes(advance().text);
    }
    for (const DeltaRow& row : kDeltas) {
        if (kind == row.kind) target.*row.field = parseAnimationDelta();
    }
}

/// delta = [ ":" ] [ "கூட்டு" | "கழி" ] number
/// The scanner makes both words OPERATORs, so from a source no amount is relative. Meant.
AnimationDelta Parser::parseAnimationDelta() {
    AnimationDelta delta;
    if (check(TokenType::COLON)) advance();
    delta.isNegative = checkKeyword("கழி");
    delta.isRelative = delta.isNegative || checkKeyword("கூட்டு");
    if (delta.isRelative) {
        advance();
        if (check(TokenType::NUMBER)) delta.value = floatOf(advance().text);
    } else {
        const Token value = advance();
        if (value.type == TokenType::NUMBER) delta.value = floatOf(value.text);
    }
    return delta;
}
