// The calls of the realtime database, made from their templates, and the bridge by which results
// come back.
#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

#define POZHIL_PATH std::string("பயனர்/1")
#define POZHIL_PAIRS json_data += "\"அ\": 5";
#define POZHIL_BODY global_vars["பார்த்தது"] = global_vars["தரவு"];
#include "emitted/database/rtdb_delete.cpp"
#include "emitted/database/rtdb_insert.cpp"
#include "emitted/database/rtdb_read.cpp"
#include "emitted/database/rtdb_update.cpp"

namespace {

using Dictionary = std::map<std::string, std::any>;

class DatabaseTest : public Surroundings {
protected:
    DatabaseTest() {
        g_rtdb_callbacks.clear();
        g_rtdb_cb_counter = 0;
    }

    static Calls script(const std::string& text) {
        return {"emscripten_run_script(\"" + text + "\")"};
    }

    static const Dictionary& dictionary(const std::string& name) {
        return std::any_cast<const Dictionary&>(global_vars[name]);
    }
};

TEST_F(DatabaseTest, InsertsAtAPath) {
    EXPECT_EQ(
        callsOf(rtdb_insert),
        script("try {   if (typeof window.db === 'undefined') { throw new Error('Firebase Database "
               "இணைக்கப்படவில்லை!'); }   var data = JSON.parse('{\"அ\": 5}');   "
               "window.db.ref('பயனர்/1').set(data)  .then(() => { console.log('✅ தரவு வெற்றிகரமாக "
               "சேமிக்கப்பட்டது!'); })  .catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', "
               "error); });} catch(e) { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', "
               "e.message); }"));
}

TEST_F(DatabaseTest, UpdatesAPathWithoutATestOfTheConnection) {
    EXPECT_EQ(
        callsOf(rtdb_update),
        script("try { var data = JSON.parse('{\"அ\": 5}'); window.db.ref('பயனர்/1').update(data)"
               ".then(() => { console.log('✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!'); })  "
               ".catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); });} catch(e) { "
               "console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', e.message); }"));
}

TEST_F(DatabaseTest, DeletesAPathWithoutATry) {
    EXPECT_EQ(callsOf(rtdb_delete),
              script("window.db.ref('பயனர்/1').remove().then(() => { console.log('✅ தரவு "
                     "வெற்றிகரமாக அழிக்கப்பட்டது!'); }).catch((error) => { console.error('❌ "
                     "ஃபயர்பேஸ் பிழை:', error); });"));
}

TEST_F(DatabaseTest, ReadsAPathOnceAndNumbersItsReads) {
    const std::string read =
        "window.db.ref('பயனர்/1').once('value').then((snapshot) => {\n"
        "  var data = snapshot.val();\n"
        "  Module.ccall('rtdb_clear_temp', null, [], []);\n"
        "  if (data) {\n"
        "    for (var k in data) {\n"
        "      var v = data[k]; var t = typeof v;\n"
        "      if (t === 'string') Module.ccall('rtdb_add_temp_str', null, ['string', 'string'], "
        "[k, v]);\n"
        "      if (t === 'number') Module.ccall('rtdb_add_temp_num', null, ['string', 'number'], "
        "[k, v]);\n"
        "      if (t === 'boolean') Module.ccall('rtdb_add_temp_bool', null, ['string', 'number'], "
        "[k, v ? 1 : 0]);\n"
        "    }\n"
        "  }\n"
        "  Module.ccall('rtdb_execute_callback', null, ['number'], [";
    const std::string end =
        "]);\n}).catch((e) => console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', e.message));";
    EXPECT_EQ(callsOf(rtdb_read), script(read + "1" + end));
    EXPECT_EQ(callsOf(rtdb_read), script(read + "2" + end));
    EXPECT_EQ(g_rtdb_callbacks.size(), 2U) << "each waits until its result has come";
}

TEST_F(DatabaseTest, GivesAResultToTheReadThatWaitsForIt) {
    callsOf(rtdb_read);
    rtdb_clear_temp();
    rtdb_add_temp_str("பெயர்", "கண்ணன்");
    rtdb_add_temp_num("விலைகள்", 2.5);
    rtdb_add_temp_bool("ஆம்", 2);
    rtdb_add_temp_bool("இல்லை", 0);
    rtdb_execute_callback(1);
    const Dictionary& seen = dictionary("பார்த்தது");
    EXPECT_EQ(seen.size(), 4U);
    EXPECT_EQ(std::any_cast<std::string>(seen.at("பெயர்")), "கண்ணன்");
    EXPECT_EQ(std::any_cast<long double>(seen.at("விலைகள்")), 2.5L);
    EXPECT_TRUE(std::any_cast<bool>(seen.at("ஆம்")));
    EXPECT_FALSE(std::any_cast<bool>(seen.at("இல்லை")));
    EXPECT_TRUE(g_rtdb_callbacks.empty()) << "it runs once";
}

TEST_F(DatabaseTest, GivesAnEmptyDictionaryForAPathWithoutData) {
    callsOf(rtdb_read);
    rtdb_add_temp_str("முன்பு", "அ");
    rtdb_clear_temp();
    rtdb_execute_callback(1);
    EXPECT_TRUE(dictionary("பார்த்தது").empty());
}

TEST_F(DatabaseTest, DoesNothingForAnUnknownRead) {
    global_vars.erase("தரவு");
    rtdb_clear_temp();
    rtdb_execute_callback(7);
    EXPECT_EQ(global_vars.count("தரவு"), 0U);
}

TEST_F(DatabaseTest, LetsAResultAskForTheNext) {
    g_rtdb_callbacks[1] = [] { rtdb_read(); };
    g_rtdb_cb_counter = 1;
    callsOf([] { rtdb_execute_callback(1); });
    EXPECT_EQ(g_rtdb_callbacks.size(), 1U);
    EXPECT_EQ(g_rtdb_callbacks.count(2), 1U);
}

}  // namespace
