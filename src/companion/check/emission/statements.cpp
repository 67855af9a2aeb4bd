// Statements, as far as C++ or the run can fail at them.
#include "companion/check/emission/walk.h"

namespace companion {

void EmissionWalk::walkBlock(const BlockStatement* block) {
    if (block == nullptr) return;
    for (const auto& statement : block->statements) {
        if (statement != nullptr) walkStatement(*statement);
    }
}

/// A block in braces of its own.
void EmissionWalk::walkBody(const BlockStatement* block) {
    openBlock();
    blockDepth++;
    walkBlock(block);
    blockDepth--;
    closeBlock();
}

void EmissionWalk::walkStatement(const Statement& statement) {
    if (walkControlFlow(statement)) return;
    if (const auto* print = nodeAs<PrintStatement>(&statement)) {
        for (const auto& expression : print->expressions) {
            checkGivesSomething(*expression, walk(*expression));
        }
    } else if (const auto* node = nodeAs<ExpressionStatement>(&statement)) {
        memberAssignment = node->expression.get();
        walk(*node->expression);
        memberAssignment = nullptr;
        checkResultIsKept(*node->expression);
    } else if (const auto* node = nodeAs<WaitStatement>(&statement)) {
        const Value duration = walk(*node->duration);
        const Kinds kinds = duration.facts.kinds;
        if (kinds != kNoKinds && (kinds & kNumbers) == 0 && duration.cpp != Cpp::Unknown) {
            tell("துணை-594", *node->duration, {textOf(*node->duration)});
        }
    } else if (const auto* node = nodeAs<FunctionDefinitionStatement>(&statement)) {
        if (!currentFunction.empty()) {
            walkNestedFunction(*node);
        } else if (isInHandler || blockDepth > 0) {
            tellWord("துணை-310", *node, node->name.text, {node->name.text});
        }
    } else if (const auto* node = nodeAs<RTDBReadStatement>(&statement)) {
        walk(*node->path);
        for (const auto& inner : node->body) {
            if (inner != nullptr) walkStatement(*inner);
        }
    } else if (const auto* node = nodeAs<WebAppNode>(&statement)) {
        walkApplication(*node);
    } else if (const auto* node = dynamic_cast<const WidgetNode*>(&statement)) {
        walkWidget(*node);
    }
}

bool EmissionWalk::walkControlFlow(const Statement& statement) {
    if (const auto* node = nodeAs<IfStatement>(&statement)) {
        walkIf(*node);
    } else if (const auto* node = nodeAs<WhileStatement>(&statement)) {
        walkTruth(*node->condition);
        loops++;
        walkBody(node->body.get());
        loops--;
    } else if (const auto* node = nodeAs<ForStatement>(&statement)) {
        walkFor(*node);
    } else if (const auto* node = nodeAs<SwitchStatement>(&statement)) {
        walkSwitch(*node);
    } else if (const auto* node = nodeAs<TryCatchStatement>(&statement)) {
        walkTry(*node);
    } else if (const auto* node = nodeAs<ReturnStatement>(&statement)) {
        walkReturn(*node);
    } else if (nodeAs<BreakStatement>(&statement) != nullptr) {
        walkJump(statement, "நிறுத்து");
    } else if (nodeAs<ContinueStatement>(&statement) != nullptr) {
        walkJump(statement, "தொடர்");
    } else if (const auto* node = nodeAs<BlockStatement>(&statement)) {
        walkBlock(node);
    } else {
        return false;
    }
    return true;
}

void EmissionWalk::walkIf(const IfStatement& statement) {
    walkTruth(*statement.condition);
    walkBody(statement.thenBranch.get());
    if (const auto* next = nodeAs<IfStatement>(statement.elseBranch.get())) {
        walkIf(*next);
    } else if (const auto* last = nodeAs<BlockStatement>(statement.elseBranch.get())) {
        walkBody(last);
    }
}

/// The variable counts as a real one from the loop's head on, its own walked value included.
void EmissionWalk::walkFor(const ForStatement& loop) {
    const std::string& name = loop.variable.text;
    checkLocalName(loop, name);
    const auto outer = locals.find(name);
    const bool wasLocal = outer != locals.end();
    if (!wasLocal) {
        Local unseen;
        unseen.isVisible = false;
        locals[name] = unseen;
    }
    const auto* call = nodeAs<CallExpression>(loop.iterable.get());
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    if (callee != nullptr && callee->name == "வரம்பு") {
        walkCountedLoop(loop, *call);
    } else {
        walkCollectionLoop(loop);
    }
    if (!wasLocal) locals.erase(name);
}

void EmissionWalk::walkCountedLoop(const ForStatement& loop, const CallExpression& range) {
    Local variable;
    variable.cpp = Cpp::LongLong;
    for (const auto& argument : range.arguments) {
        const Value bound = walk(*argument);
        if (bound.cpp == Cpp::LongDouble || bound.cpp == Cpp::Double) {
            tell("துணை-334", *argument, {textOf(*argument)});
        } else if (bound.cpp == Cpp::Any || bound.cpp == Cpp::Text || bound.cpp == Cpp::List ||
                   bound.cpp == Cpp::Map) {
            if (bound.facts.kinds != kNoKinds && (bound.facts.kinds & kNumbers) == 0) {
                tellStop("துணை-416", *argument, {textOf(*argument)});
            }
        }
    }
    walkLoopBody(loop, variable);
}

void EmissionWalk::walkCollectionLoop(const ForStatement& loop) {
    const Value walked = walk(*loop.iterable);
    const bool isPlain = walked.cpp == Cpp::Any && walked.isLvalue;
    if (loop.variable.text == "pair") {
        tellWord("துணை-305", loop, "pair", {"pair"});
    } else if (!isPlain && walked.cpp != Cpp::Unknown) {
        const bool isNumber = isArithmetic(walked.cpp) || walked.cpp == Cpp::Object;
        tell(isNumber ? "துணை-330" : "துணை-329", *loop.iterable, {textOf(*loop.iterable)});
    } else if (walked.facts.kinds != kNoKinds && (walked.facts.kinds & (kList | kMap)) == 0) {
        tellStop("துணை-419", *loop.iterable, {textOf(*loop.iterable)});
    }

    Facts elements;
    if ((walked.facts.kinds & kList) != 0) elements.kinds |= walked.facts.elements;
    if ((walked.facts.kinds & kMap) != 0) elements.kinds |= kText;
    elements.elements = elements.kinds == kNoKinds ? kNoKinds : kAnyKind;
    if (walked.cpp != Cpp::Any) elements = kAnything;
    knowledge.giveLocal(&loop, elements);

    Local variable;
    variable.node = &loop;
    walkLoopBody(loop, variable);
}

void EmissionWalk::walkLoopBody(const ForStatement& loop, Local variable) {
    openBlock();
    blockDepth++;
    declare(loop.variable.text, variable);
    loops++;
    walkBlock(loop.body.get());
    loops--;
    blockDepth--;
    closeBlock();
}

void EmissionWalk::walkSwitch(const SwitchStatement& statement) {
    const Value subject = walk(*statement.subject);
    if (statement.cases.empty() && statement.defaultBlock != nullptr) {
        tellWord("துணை-312", statement, "தேர்வு");
    }
    for (const CaseBlock& block : statement.cases) {
        const Value value = walk(*block.value);
        if (!canBeEqual(subject.facts.kinds, value.facts.kinds)) {
            tell("துணை-586", *block.value, {textOf(*statement.subject), textOf(*block.value)});
        }
        walkBody(block.body.get());
    }
    if (statement.defaultBlock != nullptr) walkBody(statement.defaultBlock.get());
}

void EmissionWalk::walkTry(const TryCatchStatement& statement) {
    tries++;
    walkBody(statement.tryBlock.get());
    tries--;
    knowledge.give(statement.errorName, {kText, kAnyKind});
    walkBody(statement.catchBlock.get());
}

void EmissionWalk::walkReturn(const ReturnStatement& statement) {
    Facts facts{kEmpty, kNoKinds};
    if (statement.value != nullptr) facts = walk(*statement.value).facts;
    if (!currentResult.empty()) knowledge.giveResult(currentResult, facts);
}

void EmissionWalk::walkJump(const Statement& statement, const char* word) {
    if (loops == 0) tellWord("துணை-311", statement, word, {word});
}

void EmissionWalk::walkApplication(const WebAppNode& app) {
    const auto* header = nodeAs<HeaderNode>(app.header.get());
    if (header != nullptr) walkWidget(*header);
    if (const auto* body = dynamic_cast<const WidgetNode*>(app.body.get())) walkWidget(*body);
}

/// Its functions and structures were written ahead of it.
void EmissionWalk::walkLogic(const Statement* statement) {
    const auto* logic = nodeAs<LogicBlockNode>(statement);
    if (logic == nullptr || logic->body == nullptr) return;
    for (const auto& inner : logic->body->statements) {
        const bool isDefinition = nodeAs<FunctionDefinitionStatement>(inner.get()) != nullptr ||
                                  nodeAs<StructDefinitionStatement>(inner.get()) != nullptr;
        if (inner != nullptr && !isDefinition) walkStatement(*inner);
    }
}

/// What a page asks of its expressions isn't what a statement asks: they are walked for what they
/// give to names, and their handlers as statements.
void EmissionWalk::walkWidget(const WidgetNode& widget) {
    const bool wasInHandler = std::exchange(isInHandler, true);
    const int outerLoops = std::exchange(loops, 0);
    Findings* const told = std::exchange(findings, nullptr);
    for (const auto& [key, value] : widget.properties) {
        if (value != nullptr) walk(*value);
    }
    findings = told;
    for (const auto& child : widget.children) {
        if (child != nullptr) walkStatement(*child);
    }
    for (const auto& statement : widget.onTapStatements) {
        if (statement != nullptr) walkStatement(*statement);
    }
    loops = outerLoops;
    isInHandler = wasInHandler;
}

}  // namespace companion
