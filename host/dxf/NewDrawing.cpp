// The drawing that NEW begins with: millimetres, ISO A3 layout, code page of our users, and no more objects
// than other programs ask of a file.
#include "host/db/AcDbDatabase.h"
#include "host/db/DxfRecordEditor.h"
#include "host/dxf/DrawingFile.h"

#include <charconv>

namespace {

// One tag a line: group code, bar, value. Groups of tags that begin with code 0 are the records.
constexpr std::string_view kTags =
    "0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1027\n9|$DWGCODEPAGE\n3|ANSI_936\n9|$INSBASE\n10|0.0\n"
    "20|0.0\n30|0.0\n9|$LTSCALE\n40|1.0\n9|$TEXTSIZE\n40|2.5\n9|$TEXTSTYLE\n7|Standard\n9|$CLAYER\n"
    "8|0\n9|$CELTYPE\n6|ByLayer\n9|$CECOLOR\n62|256\n9|$CELTSCALE\n40|1.0\n9|$DIMSTYLE\n2|Standard\n"
    "9|$LUNITS\n70|2\n9|$LUPREC\n70|4\n9|$AUNITS\n70|0\n9|$AUPREC\n70|0\n9|$HANDSEED\n5|100\n"
    "9|$MEASUREMENT\n70|1\n9|$CELWEIGHT\n370|-1\n9|$INSUNITS\n70|4\n9|$TILEMODE\n70|1\n"
    "0|ENDSEC\n"
    "0|SECTION\n2|CLASSES\n"
    "0|CLASS\n1|ACDBDICTIONARYWDFLT\n2|AcDbDictionaryWithDefault\n3|ObjectDBX Classes\n90|0\n91|1\n"
    "280|0\n281|0\n"
    "0|CLASS\n1|ACDBPLACEHOLDER\n2|AcDbPlaceHolder\n3|ObjectDBX Classes\n90|0\n91|1\n280|0\n281|0\n"
    "0|ENDSEC\n"
    "0|SECTION\n2|TABLES\n"
    "0|TABLE\n2|VPORT\n5|1\n330|0\n100|AcDbSymbolTable\n70|1\n"
    "0|VPORT\n5|21\n330|1\n100|AcDbSymbolTableRecord\n100|AcDbViewportTableRecord\n2|*Active\n70|0\n"
    "10|0.0\n20|0.0\n11|1.0\n21|1.0\n12|210.0\n22|148.5\n13|0.0\n23|0.0\n14|10.0\n24|10.0\n15|10.0\n"
    "25|10.0\n16|0.0\n26|0.0\n36|1.0\n17|0.0\n27|0.0\n37|0.0\n40|297.0\n41|1.6\n42|50.0\n43|0.0\n"
    "44|0.0\n50|0.0\n51|0.0\n71|0\n72|1000\n73|1\n74|3\n75|0\n76|0\n77|0\n78|0\n281|0\n65|1\n"
    "110|0.0\n120|0.0\n130|0.0\n111|1.0\n121|0.0\n131|0.0\n112|0.0\n122|1.0\n132|0.0\n79|0\n146|0.0\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|LTYPE\n5|2\n330|0\n100|AcDbSymbolTable\n70|3\n"
    "0|LTYPE\n5|22\n330|2\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|ByBlock\n70|0\n"
    "3|\n72|65\n73|0\n40|0.0\n"
    "0|LTYPE\n5|23\n330|2\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|ByLayer\n70|0\n"
    "3|\n72|65\n73|0\n40|0.0\n"
    "0|LTYPE\n5|24\n330|2\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|Continuous\n"
    "70|0\n3|Solid line\n72|65\n73|0\n40|0.0\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|LAYER\n5|3\n330|0\n100|AcDbSymbolTable\n70|1\n"
    "0|LAYER\n5|25\n330|3\n100|AcDbSymbolTableRecord\n100|AcDbLayerTableRecord\n2|0\n70|0\n62|7\n"
    "6|Continuous\n370|-3\n390|47\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|STYLE\n5|4\n330|0\n100|AcDbSymbolTable\n70|1\n"
    "0|STYLE\n5|26\n330|4\n100|AcDbSymbolTableRecord\n100|AcDbTextStyleTableRecord\n2|Standard\n"
    "70|0\n40|0.0\n41|1.0\n50|0.0\n71|0\n42|2.5\n3|txt\n4|\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|VIEW\n5|5\n330|0\n100|AcDbSymbolTable\n70|0\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|UCS\n5|6\n330|0\n100|AcDbSymbolTable\n70|0\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|APPID\n5|7\n330|0\n100|AcDbSymbolTable\n70|1\n"
    "0|APPID\n5|27\n330|7\n100|AcDbSymbolTableRecord\n100|AcDbRegAppTableRecord\n2|ACAD\n70|0\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|DIMSTYLE\n5|8\n330|0\n100|AcDbSymbolTable\n70|1\n100|AcDbDimStyleTable\n71|1\n"
    "340|28\n"
    "0|DIMSTYLE\n105|28\n330|8\n100|AcDbSymbolTableRecord\n100|AcDbDimStyleTableRecord\n2|Standard\n"
    "70|0\n40|1.0\n41|2.5\n42|0.625\n43|3.75\n44|1.25\n73|0\n74|0\n77|1\n78|8\n140|2.5\n141|2.5\n"
    "143|0.03937007874015748\n147|0.625\n171|3\n172|1\n178|0\n271|2\n272|2\n274|3\n278|44\n283|0\n"
    "284|8\n340|26\n"
    "0|ENDTAB\n"
    "0|TABLE\n2|BLOCK_RECORD\n5|9\n330|0\n100|AcDbSymbolTable\n70|2\n"
    "0|BLOCK_RECORD\n5|30\n330|9\n100|AcDbSymbolTableRecord\n100|AcDbBlockTableRecord\n"
    "2|*Model_Space\n340|43\n70|4\n280|1\n281|0\n"
    "0|BLOCK_RECORD\n5|31\n330|9\n100|AcDbSymbolTableRecord\n100|AcDbBlockTableRecord\n"
    "2|*Paper_Space\n340|44\n70|4\n280|1\n281|0\n"
    "0|ENDTAB\n"
    "0|ENDSEC\n"
    "0|SECTION\n2|BLOCKS\n"
    "0|BLOCK\n5|32\n330|30\n100|AcDbEntity\n8|0\n100|AcDbBlockBegin\n2|*Model_Space\n70|0\n10|0.0\n"
    "20|0.0\n30|0.0\n3|*Model_Space\n1|\n"
    "0|ENDBLK\n5|33\n330|30\n100|AcDbEntity\n8|0\n100|AcDbBlockEnd\n"
    "0|BLOCK\n5|34\n330|31\n100|AcDbEntity\n67|1\n8|0\n100|AcDbBlockBegin\n2|*Paper_Space\n70|0\n"
    "10|0.0\n20|0.0\n30|0.0\n3|*Paper_Space\n1|\n"
    "0|ENDBLK\n5|35\n330|31\n100|AcDbEntity\n67|1\n8|0\n100|AcDbBlockEnd\n"
    "0|ENDSEC\n"
    "0|SECTION\n2|ENTITIES\n"
    "0|ENDSEC\n"
    "0|SECTION\n2|OBJECTS\n"
    "0|DICTIONARY\n5|40\n330|0\n100|AcDbDictionary\n281|1\n3|ACAD_GROUP\n350|41\n3|ACAD_LAYOUT\n"
    "350|42\n3|ACAD_PLOTSTYLENAME\n350|46\n"
    "0|DICTIONARY\n5|41\n102|{ACAD_REACTORS\n330|40\n102|}\n330|40\n100|AcDbDictionary\n281|1\n"
    "0|DICTIONARY\n5|42\n102|{ACAD_REACTORS\n330|40\n102|}\n330|40\n100|AcDbDictionary\n281|1\n"
    "3|Model\n350|43\n3|布局1\n350|44\n"
    "0|LAYOUT\n5|43\n102|{ACAD_REACTORS\n330|42\n102|}\n330|42\n100|AcDbPlotSettings\n1|\n"
    "2|none_device\n4|ISO_A3_(420.00_x_297.00_MM)\n6|\n40|7.5\n41|20.0\n42|7.5\n43|20.0\n44|420.0\n"
    "45|297.0\n46|0.0\n47|0.0\n48|0.0\n49|0.0\n140|0.0\n141|0.0\n142|1.0\n143|1.0\n70|1024\n72|1\n"
    "73|0\n74|5\n7|\n75|16\n76|0\n77|2\n78|300\n147|1.0\n148|0.0\n149|0.0\n100|AcDbLayout\n1|Model\n"
    "70|1\n71|0\n10|0.0\n20|0.0\n11|420.0\n21|297.0\n12|0.0\n22|0.0\n32|0.0\n14|0.0\n24|0.0\n34|0.0\n"
    "15|0.0\n25|0.0\n35|0.0\n146|0.0\n13|0.0\n23|0.0\n33|0.0\n16|1.0\n26|0.0\n36|0.0\n17|0.0\n"
    "27|1.0\n37|0.0\n76|0\n330|30\n"
    "0|LAYOUT\n5|44\n102|{ACAD_REACTORS\n330|42\n102|}\n330|42\n100|AcDbPlotSettings\n1|\n"
    "2|none_device\n4|ISO_A3_(420.00_x_297.00_MM)\n6|\n40|7.5\n41|20.0\n42|7.5\n43|20.0\n44|420.0\n"
    "45|297.0\n46|0.0\n47|0.0\n48|0.0\n49|0.0\n140|0.0\n141|0.0\n142|1.0\n143|1.0\n70|0\n72|1\n73|0\n"
    "74|5\n7|\n75|16\n76|0\n77|2\n78|300\n147|1.0\n148|0.0\n149|0.0\n100|AcDbLayout\n1|布局1\n70|1\n"
    "71|1\n10|0.0\n20|0.0\n11|420.0\n21|297.0\n12|0.0\n22|0.0\n32|0.0\n14|0.0\n24|0.0\n34|0.0\n"
    "15|0.0\n25|0.0\n35|0.0\n146|0.0\n13|0.0\n23|0.0\n33|0.0\n16|1.0\n26|0.0\n36|0.0\n17|0.0\n"
    "27|1.0\n37|0.0\n76|0\n330|31\n"
    "0|ACDBDICTIONARYWDFLT\n5|46\n102|{ACAD_REACTORS\n330|40\n102|}\n330|40\n100|AcDbDictionary\n"
    "281|1\n3|Normal\n350|47\n100|AcDbDictionaryWithDefault\n340|47\n"
    "0|ACDBPLACEHOLDER\n5|47\n102|{ACAD_REACTORS\n330|46\n102|}\n330|46\n"
    "0|ENDSEC\n"
    "0|EOF\n";

} // namespace

void dxf::BuildNewDrawing(AcDbDatabase& database) {
  std::string text;
  for (std::string_view rest = kTags; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(line.size() + 1);
    const auto bar = line.find('|');
    int code = 0;
    std::from_chars(line.data(), line.data() + bar, code);
    text += DxfRecordEditor::tag(code, line.substr(bar + 1));
  }
  ReadDrawingBytes(std::move(text), L"NEW", database);
  database.form().crlf = true;
}
