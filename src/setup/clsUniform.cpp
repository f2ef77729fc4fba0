#include "setup/clsUniform.h"

namespace {

struct Family {
    const char* table;
    const char* size;
    const char* text;
    const char* noRecords;
    const char* sizeMissing;
    const char* textMissing;
};
constexpr Family families[] = {
    {"tblPantSize", "PantSize", "PantSizeText", "Pants Size Table.  ", "Missing the Pants Size Designator.",
     "Missing the Pants Size Description."},
    {"tblShirtSize", "ShirtSize", "ShirtSizeText", "Shirt Size Table. ", "Missing the Shirt Size Designator.",
     "Missing the Shirt Size Description."},
    {"tblHatSize", "HatSize", "HatSizeText", "Hat Size Table. ", "Missing the Hat Size Designator.",
     "Missing the Hat Size Description."},
    {"tblSocksSize", "SocksSize", "SocksSizeText", "Hat Size Table. ", "Missing the Socks Size Designator.",
     "Missing the Socks Size Description."},
    {"tblShoeSize", "ShoeSize", "ShoeSizeText", "Hat Size Table. ", "Missing the Shoe Size Designator.",
     "Missing the Shoe Size Description."},
};
const Family& familyOf(Garment garment) { return families[static_cast<int>(garment)]; }

}  // namespace

UniformSize::UniformSize(StoreContext& context, Garment garment)
    : RecordClass(context), Size(this, familyOf(garment).size), SizeText(this, familyOf(garment).text) {
    const Family& own = familyOf(garment);
    RecordRules rules{.source = own.table, .tag = ".clsUniform", .noRecords = own.noRecords, .naturalKey = {&SizeText}};
    for (const Family& each : families) {  // the numbers run on through all garments
        rules.required.push_back({&Size, each.sizeMissing, &each == &own});
        rules.required.push_back({&SizeText, each.textMissing, &each == &own});
    }
    open(std::move(rules));
}
