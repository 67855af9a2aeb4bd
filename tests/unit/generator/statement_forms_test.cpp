// Statements as text: the forms that today's grammar doesn't lead to, and the rows of the dispatch
// that no whole source shows.
#include <gtest/gtest.h>

#include <stdexcept>

#include "error_codes.h"
#include "support/generated_text.h"

namespace {

using Value = std::unique_ptr<Expression>;

Value numberOf(const std::string& digits) { return std::make_unique<NumberLiteral>(digits); }
Value variableNamed(const std::string& name) { return std::make_unique<VariableAccess>(name); }
Value noElements() { return std::make_unique<ListLiteral>(); }
Token identifier(const std::string& text) { return {TokenType::IDENTIFIER, text, 1}; }

Value call(const std::string& name, std::vector<Value> arguments = {}) {
    auto node = std::make_unique<CallExpression>(variableNamed(name), std::move(arguments));
    node->line = 6;
    return node;
}

Value call(const std::string& name, Value argument) {
    std::vector<Value> arguments;
    arguments.push_back(std::move(argument));
    return call(name, std::move(arguments));
}

/// A generator for the structures of `source`, one level deep.
class Forms : public testing::Test {
protected:
    void use(const std::string& source) {
        parsed = parse(source);
        const Parser& parser = *parsed.parser;
        generator = std::make_unique<Generator>(
            parsed.program, parser.functionParameters, parser.structDefinitions,
            parser.abstractStructDefinitions, source, "test.பொழில்");
        for (const auto& [name, structure] : parser.structDefinitions) {
            generator->structNames[name] = true;
        }
        generator->indentLevel = 1;
    }
    void SetUp() override { use(""); }

    std::string written(const Statement& statement) {
        generator->out.str("");
        generator->visitStatement(&statement);
        return generator->out.str();
    }
    std::string declared(const std::string& name, Value value, VarType type = VarType::Unset) {
        return written(VarDeclaration(name, std::move(value), type, false));
    }
    VarType kindOf(const std::string& name) const { return generator->variableTypes.at(name); }

    Parsed parsed;
    std::unique_ptr<Generator> generator;
};

class DeclarationForm : public Forms {};

TEST_F(DeclarationForm, AtTopLevelIsGlobalAndRecorded) {
    EXPECT_EQ(declared("அ", numberOf("1")), "    global_vars[\"அ\"] = std::any(1LL);\n");
    EXPECT_EQ(kindOf("அ"), VarType::Integer);
    EXPECT_EQ(declared("அ", noElements()), "    global_vars[\"அ\"] = std::vector<std::any>({});\n");
    EXPECT_EQ(kindOf("அ"), VarType::List);
    EXPECT_EQ(declared("அ", variableNamed("ஆ")),
              "    global_vars[\"அ\"] = std::any(global_vars[\"ஆ\"]);\n");
    EXPECT_EQ(kindOf("அ"), VarType::Dynamic);
    EXPECT_TRUE(generator->localVariables.empty());
}

TEST_F(DeclarationForm, TakesTheDeclaredKindBeforeTheInferredOne) {
    EXPECT_EQ(declared("அ", numberOf("1"), VarType::Time), "    global_vars[\"அ\"] = 1LL;\n");
    EXPECT_EQ(kindOf("அ"), VarType::Time);
    EXPECT_EQ(declared("ஆ", numberOf("1"), VarType::List),
              "    global_vars[\"ஆ\"] = std::any(1LL);\n");
    EXPECT_EQ(kindOf("ஆ"), VarType::List);
}

TEST_F(DeclarationForm, OfANewNameInAFunctionIsALocal) {
    generator->currentFunction = "சே";
    EXPECT_EQ(declared("அ", numberOf("1")), "    std::any அ = std::any(1LL);\n");
    EXPECT_EQ(generator->localVariables.count("அ"), 1U);
    EXPECT_EQ(generator->variableTypes.count("அ"), 0U);
    EXPECT_EQ(declared("அ", numberOf("2")), "    அ = std::any(2LL);\n");
}

TEST_F(DeclarationForm, OfAKnownNameInAFunctionIsGlobal) {
    generator->currentFunction = "சே";
    generator->variableTypes["அ"] = VarType::String;
    EXPECT_EQ(declared("அ", numberOf("1")), "    global_vars[\"அ\"] = std::any(1LL);\n");
    EXPECT_EQ(kindOf("அ"), VarType::String) << "a function records lists and dictionaries alone";
}

TEST_F(DeclarationForm, OfANewListInAFunctionIsTextThatDoesNotCompile) {
    generator->currentFunction = "சே";
    EXPECT_EQ(declared("அ", noElements()),
              "    std::any global_vars[\"அ\"] = std::vector<std::any>({});\n");
    EXPECT_EQ(kindOf("அ"), VarType::List);
}

TEST_F(DeclarationForm, OfAnObjectThatNoConstructorMakesIsTextThatDoesNotCompile) {
    EXPECT_EQ(declared("அ", variableNamed("ஆ"), VarType::Object),
              "    global_vars[\"அ\"] = std::any();\n = std::any(global_vars[\"ஆ\"]);\n");
    generator->variableTypes["ஆ"] = VarType::Object;
    EXPECT_EQ(declared("அ", variableNamed("ஆ")),
              "    global_vars[\"அ\"] = std::any();\n = global_vars[\"ஆ\"];\n");
}

TEST_F(DeclarationForm, TakesOneNameForAConstant) {
    declared("மாறிலி", numberOf("1"));
    declared("மாறிலி_அ", numberOf("1"));
    EXPECT_EQ(generator->constants, std::set<std::string>{"மாறிலி"});
}

const char* const kAccountStructure =
    "கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\n    செயல் துவக்கம்(தான், தொகை):\n"
    "        தான்.இருப்பு = தொகை\nகட்டமைப்பு சேமிப்பு(கணக்கு):\n    வட்டி = 2\n";

TEST_F(DeclarationForm, OfAnInstanceFillsAVariableOfItsOwn) {
    use(kAccountStructure);
    EXPECT_EQ(declared("க", call("கணக்கு", numberOf("7"))),
              "    global_vars[\"க\"] = std::any();\n"
              "    auto obj_க = std::make_shared<கணக்கு>();\n"
              "    obj_க->properties[\"இருப்பு\"] = std::any(5LL);\n"
              "    obj_க->properties[\"துவக்கம்\"] = std::any(std::function<std::any(std::any)>("
              "[=](std::any தொகை) { return "
              "fn_கணக்கு_துவக்கம்(std::static_pointer_cast<_StructBase>(obj_க), தொகை); }));\n"
              "    fn_கணக்கு_துவக்கம்(std::static_pointer_cast<_StructBase>(obj_க), std::any(7LL));\n"
              "    global_vars[\"க\"] = "
              "std::any(std::static_pointer_cast<_StructBase>(obj_க));\n");
    EXPECT_EQ(kindOf("க"), VarType::Object);
}

TEST_F(DeclarationForm, OfAnInstanceDoesNotCountTheConstructorsArguments) {
    use(kAccountStructure);
    const std::string text = declared("க", call("கணக்கு"));
    EXPECT_NE(text.find("    fn_கணக்கு_துவக்கம்(std::static_pointer_cast<_StructBase>(obj_க));\n"),
              std::string::npos);
}

TEST_F(DeclarationForm, OfAnInstanceInAFunctionFillsTheLocal) {
    use("கட்டமைப்பு புள்ளி:\n    இடம் = 5\n");
    generator->currentFunction = "சே";
    EXPECT_EQ(declared("ப", call("புள்ளி")),
              "    std::any ப = std::any();\n"
              "    auto obj_ப = std::make_shared<புள்ளி>();\n"
              "    obj_ப->properties[\"இடம்\"] = std::any(5LL);\n"
              "    ப = std::any(std::static_pointer_cast<_StructBase>(obj_ப));\n");
    EXPECT_EQ(kindOf("ப"), VarType::Object);
}

TEST_F(DeclarationForm, OfAnInstanceDoesNotFindAnInheritedConstructor) {
    use(kAccountStructure);
    EXPECT_EQ(declared("சே", call("சேமிப்பு")).find("    fn_கணக்கு_துவக்கம்("), std::string::npos);
    try {
        declared("சே", call("சேமிப்பு", numberOf("7")));
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.code, "பொழில்-333");
        EXPECT_EQ(refusal.message, பிழை_அகராதி.at("பொழில்-333").விளக்கம் +
                                       " ('சேமிப்பு' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.)");
    }
}

class SetForm : public Forms {
protected:
    std::string stored(Value target, Value value) {
        SetStatement statement(std::move(target), std::move(value));
        statement.line = 9;
        return written(statement);
    }
    static Value member(const std::string& object, const std::string& name) {
        return std::make_unique<GetExpression>(variableNamed(object), identifier(name));
    }
};

TEST_F(SetForm, OfAnElementHasNoPlace) {
    EXPECT_EQ(
        stored(std::make_unique<IndexExpression>(variableNamed("அ"), numberOf("0")), numberOf("1")),
        "    fn_index_ref(global_vars[\"அ\"], std::any(0LL)) = std::any(1LL);\n");
}

TEST_F(SetForm, OfAPropertyCastsTheObject) {
    generator->variableTypes["க"] = VarType::Object;
    EXPECT_EQ(stored(member("க", "இருப்பு"), numberOf("1")),
              "    std::any_cast<std::shared_ptr<_StructBase>>(global_vars[\"க\"])"
              "->properties[\"இருப்பு\"] = std::any(1LL);\n");
}

TEST_F(SetForm, OfAnythingElseWritesNothing) {
    EXPECT_EQ(stored(variableNamed("அ"), numberOf("1")), "    ;\n");
}

TEST_F(SetForm, Refusals) {
    use("கட்டமைப்பு கணக்கு:\n    ரகசிய இருப்பு = 5\n");
    generator->variableTypes["நே"] = VarType::Time;
    generator->variableTypes["க"] = VarType::Object;
    EXPECT_TRUE(refuses("பொழில்-322", 9, [&] { stored(member("நே", "ஆண்டு"), numberOf("1")); }));
    EXPECT_TRUE(refuses("பொழில்-321", 9, [&] { stored(member("க", "இருப்பு"), numberOf("1")); }));
    try {
        stored(member("அ", "பெயர்"), numberOf("1"));
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.code, "பொழில்-304");
        EXPECT_EQ(refusal.line, 9);
        EXPECT_EQ(refusal.message, பிழை_அகராதி.at("பொழில்-304").விளக்கம் +
                                       " ('.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.)");
    }
}

TEST_F(SetForm, TheReceiverReachesItsPrivateField) {
    use("கட்டமைப்பு கணக்கு:\n    ரகசிய இருப்பு = 5\n");
    generator->currentStruct = "கணக்கு";
    generator->localVariables["தான்"] = true;
    EXPECT_EQ(stored(member("தான்", "இருப்பு"), numberOf("1")),
              "    std::any_cast<std::shared_ptr<_StructBase>>(தான்)"
              "->properties[\"இருப்பு\"] = std::any(1LL);\n");
}

using CompoundForms = Forms;

TEST_F(CompoundForms, AssignToATemporary) {
    EXPECT_EQ(written(CompoundAssignmentStatement(variableNamed("அ"), identifier("கூட்டிசேர்"),
                                                  numberOf("1"))),
              "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) += "
              "std::any_cast<long long>(1LL));\n");
    EXPECT_EQ(
        written(IncrementStatement(variableNamed("அ"), identifier("ஒன்றுசேர்"))),
        "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) ++);\n");
}

using StatementDispatch = Forms;

TEST_F(StatementDispatch, PlainStatementsAreIndentedAndEnded) {
    EXPECT_EQ(written(BreakStatement()), "    break;\n");
    EXPECT_EQ(written(ContinueStatement()), "    continue;\n");
    EXPECT_EQ(written(PassStatement()), "    (void)0;\n");
    EXPECT_EQ(written(ReturnStatement(nullptr)), "    return 0; // C++ main requires int;\n");
    EXPECT_EQ(written(ExpressionStatement(numberOf("1"))), "    1LL;\n");
    EXPECT_EQ(written(SetStateStatement()), "    // UI-ஐப் புதுப்பித்தல்\n    updateUI();\n");
}

TEST_F(StatementDispatch, ABlockHasNoBracesAndPassesOverWhatIsAbsent) {
    BlockStatement block;
    block.statements.push_back(std::make_unique<PassStatement>());
    block.statements.push_back(nullptr);
    block.statements.push_back(std::make_unique<BreakStatement>());
    EXPECT_EQ(written(block), "    (void)0;\n    break;\n");
    EXPECT_EQ(generator->indentLevel, 1);
}

TEST_F(StatementDispatch, StructuresWriteNothingHere) {
    use("கட்டமைப்பு புள்ளி:\n    இடம் = 5\nவடிவமைப்பு வடிவம்:\n    செயல் வரை(தான்)\n");
    ASSERT_EQ(parsed.program.statements.size(), 2U);
    for (const auto& statement : parsed.program.statements) EXPECT_EQ(written(*statement), "");
}

TEST_F(StatementDispatch, AnApplicationAndItsLogicWriteWhatTheyHold) {
    auto body = std::make_unique<BlockStatement>();
    body->statements.push_back(std::make_unique<PassStatement>());
    body->statements.push_back(nullptr);
    EXPECT_EQ(written(LogicBlockNode(std::move(body))), "    (void)0;\n");
    const WebAppNode app("தளம்", nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(written(app),
              "    if (g_currentPage == \"home\") {\n"
              "        nvgBeginPath(vg);\n"
              "        nvgRect(vg, 0, 0, winWidth, winHeight);\n"
              "        bool bgSet = false;\n"
              "        if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));\n"
              "        nvgFill(vg);\n"
              "    }\n");
}

TEST_F(StatementDispatch, AWidgetIsToldByItsName) {
    const auto widget = [](const std::string& name) {
        return WidgetNode(name, {}, {}, சீரமைப்பு_வகை::மையம், false);
    };
    EXPECT_EQ(written(widget("உரை")),
              "#ifdef __EMSCRIPTEN__\n    drawFixedText(50, 50, \"\", \"black\", 20.0, \"left\");\n"
              "#endif\n");
    for (const char* name : {"பொத்தான்", "நெடுவரிசை", "படம்"})
        EXPECT_EQ(written(widget(name)), "") << name;
}

/// What throw_static_error says for a statement without a row.
void expectUnknown(Generator& generator, const Statement* statement) {
    try {
        generator.visitStatement(statement);
        FAIL();
    } catch (const std::runtime_error& error) {
        const பிழைதகவல்& entry = பிழை_அகராதி.at("பொழில்-399");
        EXPECT_EQ(error.what(), "பொழில்-399: " + entry.விளக்கம் + " - " + entry.தீர்வு +
                                    " (Unknown statement type in generator)");
    }
}

TEST_F(StatementDispatch, AnythingElseIsUnknown) {
    const FirebaseConfigNode configuration({});
    expectUnknown(*generator, &configuration);
    expectUnknown(*generator, nullptr);
}

using ChoiceForm = Forms;

TEST_F(ChoiceForm, WithoutCasesHoldsTheSubjectAlone) {
    EXPECT_EQ(written(SwitchStatement(numberOf("1"), {}, nullptr)),
              "    {\n        auto _switch_val = 1LL;\n    }\n");
}

TEST(SourceLines, AreCountedFromOne) {
    const Program program;
    Generator generator(program, {}, {}, {}, "முதல்\n\n  மூன்று\r\nநான்கு", "test.பொழில்");
    EXPECT_EQ(generator.getLineText(1), "முதல்");
    EXPECT_EQ(generator.getLineText(2), "");
    EXPECT_EQ(generator.getLineText(3), "  மூன்று\r");
    EXPECT_EQ(generator.getLineText(4), "நான்கு");
    for (const int line : {0, -1, 5, 1000}) EXPECT_EQ(generator.getLineText(line), "") << line;
}

}  // namespace
