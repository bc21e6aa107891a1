using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A dimension style. Properties are named after the variables.</summary>
[CadObject("DIMSTYLE", Subclass = "AcDbDimStyleTableRecord")]
[CadBits(
    "ExchangeRecord()", "-1997 B Dimtol", "-1997 B Dimlim", "-1997 B Dimtih", "-1997 B Dimtoh", "-1997 B Dimse1",
    "-1997 B Dimse2", "-1997 B Dimalt", "-1997 B Dimtofl", "-1997 B Dimsah", "-1997 B Dimtix", "-1997 B Dimsoxd",
    "-1997 RC Dimaltd", "-1997 RC Dimzin", "-1997 B Dimsd1", "-1997 B Dimsd2", "-1997 RC Dimtolj", "-1997 RC Dimjust",
    "-1997 RC Dimfit", "-1997 B Dimupt", "-1997 RC Dimtzin", "-1997 RC Dimaltz", "-1997 RC Dimalttz",
    "-1997 RC Dimtad", "-1997 BS Dimunit", "-1997 BS Dimaunit", "-1997 BS Dimdec", "-1997 BS Dimtdec",
    "-1997 BS Dimaltu", "-1997 BS Dimalttd", "-1997 BD Dimscale", "-1997 BD Dimasz", "-1997 BD Dimexo",
    "-1997 BD Dimdli", "-1997 BD Dimexe", "-1997 BD Dimrnd", "-1997 BD Dimdle", "-1997 BD Dimtp", "-1997 BD Dimtm",
    "-1997 BD Dimtxt", "-1997 BD Dimcen", "-1997 BD Dimtsz", "-1997 BD Dimaltf", "-1997 BD Dimlfac",
    "-1997 BD Dimtvp", "-1997 BD Dimtfac", "-1997 BD Dimgap", "-1997 T Dimpost", "-1997 T Dimapost",
    "-1997 T DimblkName", "-1997 T Dimblk1Name", "-1997 T Dimblk2Name", "-1997 CMC Dimclrd", "-1997 CMC Dimclre",
    "-1997 CMC Dimclrt", "2000+ T Dimpost", "2000+ T Dimapost", "2000+ BD Dimscale", "2000+ BD Dimasz",
    "2000+ BD Dimexo", "2000+ BD Dimdli", "2000+ BD Dimexe", "2000+ BD Dimrnd", "2000+ BD Dimdle", "2000+ BD Dimtp",
    "2000+ BD Dimtm", "2007+ BD Dimfxl", "2007+ BD Dimjogang", "2007+ BS Dimtfill", "2007+ CMC Dimtfillclr",
    "2000+ B Dimtol", "2000+ B Dimlim", "2000+ B Dimtih", "2000+ B Dimtoh", "2000+ B Dimse1", "2000+ B Dimse2",
    "2000+ BS Dimtad", "2000+ BS Dimzin", "2000+ BS Dimazin", "2007+ BS Dimarcsym", "2000+ BD Dimtxt",
    "2000+ BD Dimcen", "2000+ BD Dimtsz", "2000+ BD Dimaltf", "2000+ BD Dimlfac", "2000+ BD Dimtvp",
    "2000+ BD Dimtfac", "2000+ BD Dimgap", "2000+ BD Dimaltrnd", "2000+ B Dimalt", "2000+ BS Dimaltd",
    "2000+ B Dimtofl", "2000+ B Dimsah", "2000+ B Dimtix", "2000+ B Dimsoxd", "2000+ CMC Dimclrd",
    "2000+ CMC Dimclre", "2000+ CMC Dimclrt", "2000+ BS Dimadec", "2000+ BS Dimdec", "2000+ BS Dimtdec",
    "2000+ BS Dimaltu", "2000+ BS Dimalttd", "2000+ BS Dimaunit", "2000+ BS Dimfrac", "2000+ BS Dimlunit",
    "2000+ BS Dimdsep", "2000+ BS Dimtmove", "2000+ BS Dimjust", "2000+ B Dimsd1", "2000+ B Dimsd2",
    "2000+ BS Dimtolj", "2000+ BS Dimtzin", "2000+ BS Dimaltz", "2000+ BS Dimalttz", "2000+ B Dimupt",
    "2000+ BS Dimatfit", "2007+ B Dimfxlon", "2010+ B Dimtxtdirection", "2010+ BD = 100", "2010+ T", "2010+ BD = 100",
    "2010+ T", "2000+ BS Dimlwd", "2000+ BS Dimlwe", "ExchangeFlag()", "H Dimtxsty", "2000+ H Dimldrblk",
    "2000+ H Dimblk", "2000+ H Dimblk1", "2000+ H Dimblk2", "2007+ H Dimltype", "2007+ H Dimltex1",
    "2007+ H Dimltex2")]
public partial class CadDimensionStyleTable : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDimensionStyleTable()
    {
    }

    /// <summary>Gets or sets $DIMPOST: text around the measurement. Group code 3.</summary>
    [CadString(3, Optional = true)]
    public string Dimpost { get; set; } = "";

    /// <summary>Gets or sets $DIMAPOST: text around the alternate measurement. Group code 4.</summary>
    [CadString(4, Optional = true)]
    public string Dimapost { get; set; } = "";

    /// <summary>Gets or sets $DIMSCALE: the factor on all sizes; 0 for the scale of the viewport. Group code
    /// 40.</summary>
    [CadDouble(40, Optional = true)]
    public double Dimscale { get; set; } = 1;

    /// <summary>Gets or sets $DIMASZ: the size of arrowheads. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double Dimasz { get; set; } = 0.18;

    /// <summary>Gets or sets $DIMEXO: the gap between the measured point and its extension line. Group code
    /// 42.</summary>
    [CadDouble(42, Optional = true)]
    public double Dimexo { get; set; } = 0.0625;

    /// <summary>Gets or sets $DIMDLI: the distance of parallel dimension lines. Group code 43.</summary>
    [CadDouble(43, Optional = true)]
    public double Dimdli { get; set; } = 0.38;

    /// <summary>Gets or sets $DIMEXE: how far extension lines run beyond the dimension line. Group code 44.</summary>
    [CadDouble(44, Optional = true)]
    public double Dimexe { get; set; } = 0.18;

    /// <summary>Gets or sets $DIMRND: the number that lengths are rounded to. Group code 45.</summary>
    [CadDouble(45, Optional = true)]
    public double Dimrnd { get; set; }

    /// <summary>Gets or sets $DIMDLE: how far the dimension line runs beyond the extension lines. Group code
    /// 46.</summary>
    [CadDouble(46, Optional = true)]
    public double Dimdle { get; set; }

    /// <summary>Gets or sets $DIMTP: the upper tolerance. Group code 47.</summary>
    [CadDouble(47, Optional = true)]
    public double Dimtp { get; set; }

    /// <summary>Gets or sets $DIMTM: the lower tolerance. Group code 48.</summary>
    [CadDouble(48, Optional = true)]
    public double Dimtm { get; set; }

    /// <summary>Gets or sets $DIMFXL: the fixed length of extension lines. Group code 49.</summary>
    [CadDouble(49, Optional = true, Since = 2007)]
    public double Dimfxl { get; set; } = 1;

    /// <summary>Gets or sets $DIMJOGANG: the angle of jogs, in radians. Group code 50.</summary>
    [CadAngle(50, Optional = true, Since = 2007)]
    public double Dimjogang { get; set; } = 0.785398163397448;

    /// <summary>Gets or sets $DIMTXT: the height of the text. Group code 140.</summary>
    [CadDouble(140, Optional = true)]
    public double Dimtxt { get; set; } = 0.18;

    /// <summary>Gets or sets $DIMCEN: the size of centre marks. Group code 141.</summary>
    [CadDouble(141, Optional = true)]
    public double Dimcen { get; set; } = 0.09;

    /// <summary>Gets or sets $DIMTSZ: the size of ticks; 0 for arrowheads. Group code 142.</summary>
    [CadDouble(142, Optional = true)]
    public double Dimtsz { get; set; }

    /// <summary>Gets or sets $DIMALTF: the factor of alternate units. Group code 143.</summary>
    [CadDouble(143, Optional = true)]
    public double Dimaltf { get; set; } = 25.4;

    /// <summary>Gets or sets $DIMLFAC: the factor on measured lengths. Group code 144.</summary>
    [CadDouble(144, Optional = true)]
    public double Dimlfac { get; set; } = 1;

    /// <summary>Gets or sets $DIMTVP: the vertical position of the text. Group code 145.</summary>
    [CadDouble(145, Optional = true)]
    public double Dimtvp { get; set; }

    /// <summary>Gets or sets $DIMTFAC: the size of tolerances relative to the text. Group code 146.</summary>
    [CadDouble(146, Optional = true)]
    public double Dimtfac { get; set; } = 1;

    /// <summary>Gets or sets $DIMGAP: the gap around the text. Group code 147.</summary>
    [CadDouble(147, Optional = true)]
    public double Dimgap { get; set; } = 0.09;

    /// <summary>Gets or sets $DIMALTRND: the number that alternate lengths are rounded to. Group code 148.</summary>
    [CadDouble(148, Optional = true, Since = 2000)]
    public double Dimaltrnd { get; set; }

    /// <summary>Gets or sets $DIMTOL: whether tolerances are shown. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short Dimtol { get; set; }

    /// <summary>Gets or sets $DIMLIM: whether limits are shown. Group code 72.</summary>
    [CadShort(72, Optional = true)]
    public short Dimlim { get; set; }

    /// <summary>Gets or sets $DIMTIH: whether texts inside are level. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public short Dimtih { get; set; } = 1;

    /// <summary>Gets or sets $DIMTOH: whether texts outside are level. Group code 74.</summary>
    [CadShort(74, Optional = true)]
    public short Dimtoh { get; set; } = 1;

    /// <summary>Gets or sets $DIMSE1: whether the first extension line is left out. Group code 75.</summary>
    [CadShort(75, Optional = true)]
    public short Dimse1 { get; set; }

    /// <summary>Gets or sets $DIMSE2: whether the second extension line is left out. Group code 76.</summary>
    [CadShort(76, Optional = true)]
    public short Dimse2 { get; set; }

    /// <summary>Gets or sets $DIMTAD: the position of the text: 0 on the line, 1 above, 2 outside, 3 as in JIS, 4
    /// below. Group code 77.</summary>
    [CadShort(77, Optional = true)]
    public short Dimtad { get; set; }

    /// <summary>Gets or sets $DIMZIN: which zeros are left out. Group code 78.</summary>
    [CadShort(78, Optional = true)]
    public short Dimzin { get; set; }

    /// <summary>Gets or sets $DIMAZIN: which zeros of angles are left out. Group code 79.</summary>
    [CadShort(79, Optional = true, Since = 2000)]
    public short Dimazin { get; set; }

    /// <summary>Gets or sets $DIMALT: whether alternate units are shown. Group code 170.</summary>
    [CadShort(170, Optional = true)]
    public short Dimalt { get; set; }

    /// <summary>Gets or sets $DIMALTD: the decimals of alternate units. Group code 171.</summary>
    [CadShort(171, Optional = true)]
    public short Dimaltd { get; set; } = 2;

    /// <summary>Gets or sets $DIMTOFL: whether a line is drawn although the text is outside. Group code
    /// 172.</summary>
    [CadShort(172, Optional = true)]
    public short Dimtofl { get; set; }

    /// <summary>Gets or sets $DIMSAH: whether both ends have arrowheads of their own. Group code 173.</summary>
    [CadShort(173, Optional = true)]
    public short Dimsah { get; set; }

    /// <summary>Gets or sets $DIMTIX: whether texts are forced inside. Group code 174.</summary>
    [CadShort(174, Optional = true)]
    public short Dimtix { get; set; }

    /// <summary>Gets or sets $DIMSOXD: whether lines outside are left out. Group code 175.</summary>
    [CadShort(175, Optional = true)]
    public short Dimsoxd { get; set; }

    /// <summary>Gets or sets $DIMCLRD: the colour number of dimension lines; 0 by block. Group code 176.</summary>
    [CadColor(176, Optional = true)]
    public short Dimclrd { get; set; }

    /// <summary>Gets or sets $DIMCLRE: the colour number of extension lines; 0 by block. Group code 177.</summary>
    [CadColor(177, Optional = true)]
    public short Dimclre { get; set; }

    /// <summary>Gets or sets $DIMCLRT: the colour number of texts; 0 by block. Group code 178.</summary>
    [CadColor(178, Optional = true)]
    public short Dimclrt { get; set; }

    /// <summary>Gets or sets $DIMADEC: the decimals of angles. Group code 179.</summary>
    [CadShort(179, Optional = true, Since = 2000)]
    public short Dimadec { get; set; }

    /// <summary>Gets or sets $DIMUNIT: the form of lengths in releases 13 and 14. Group code 270.</summary>
    [CadShort(270, Optional = true, Since = 1994)]
    public short Dimunit { get; set; } = 2;

    /// <summary>Gets or sets $DIMDEC: the decimals of lengths. Group code 271.</summary>
    [CadShort(271, Optional = true, Since = 1994)]
    public short Dimdec { get; set; } = 4;

    /// <summary>Gets or sets $DIMTDEC: the decimals of tolerances. Group code 272.</summary>
    [CadShort(272, Optional = true, Since = 1994)]
    public short Dimtdec { get; set; } = 4;

    /// <summary>Gets or sets $DIMALTU: the form of alternate lengths. Group code 273.</summary>
    [CadShort(273, Optional = true, Since = 1994)]
    public short Dimaltu { get; set; } = 2;

    /// <summary>Gets or sets $DIMALTTD: the decimals of alternate tolerances. Group code 274.</summary>
    [CadShort(274, Optional = true, Since = 1994)]
    public short Dimalttd { get; set; } = 2;

    /// <summary>Gets or sets $DIMAUNIT: the form of angles: 0 degrees, 1 degrees, minutes and seconds, 2 gons, 3
    /// radians. Group code 275.</summary>
    [CadShort(275, Optional = true, Since = 1994)]
    public short Dimaunit { get; set; }

    /// <summary>Gets or sets $DIMFRAC: how fractions are drawn. Group code 276.</summary>
    [CadShort(276, Optional = true, Since = 2000)]
    public short Dimfrac { get; set; }

    /// <summary>Gets or sets $DIMLUNIT: the form of lengths: 1 scientific, 2 decimal, 3 engineering, 4 architectural,
    /// 5 fractional. Group code 277.</summary>
    [CadShort(277, Optional = true, Since = 2000)]
    public short Dimlunit { get; set; } = 2;

    /// <summary>Gets or sets $DIMDSEP: the decimal separator as the code of its character. Group code 278.</summary>
    [CadShort(278, Optional = true, Since = 2000)]
    public short Dimdsep { get; set; } = 46;

    /// <summary>Gets or sets $DIMTMOVE: what follows when a text is moved. Group code 279.</summary>
    [CadShort(279, Optional = true, Since = 2000)]
    public short Dimtmove { get; set; }

    /// <summary>Gets or sets $DIMJUST: the position of the text along the line. Group code 280.</summary>
    [CadShort(280, Optional = true, Since = 1994)]
    public short Dimjust { get; set; }

    /// <summary>Gets or sets $DIMSD1: whether the first half of the line is left out. Group code 281.</summary>
    [CadShort(281, Optional = true, Since = 1994)]
    public short Dimsd1 { get; set; }

    /// <summary>Gets or sets $DIMSD2: whether the second half of the line is left out. Group code 282.</summary>
    [CadShort(282, Optional = true, Since = 1994)]
    public short Dimsd2 { get; set; }

    /// <summary>Gets or sets $DIMTOLJ: the vertical position of tolerances. Group code 283.</summary>
    [CadShort(283, Optional = true, Since = 1994)]
    public short Dimtolj { get; set; } = 1;

    /// <summary>Gets or sets $DIMTZIN: which zeros of tolerances are left out. Group code 284.</summary>
    [CadShort(284, Optional = true, Since = 1994)]
    public short Dimtzin { get; set; }

    /// <summary>Gets or sets $DIMALTZ: which zeros of alternate lengths are left out. Group code 285.</summary>
    [CadShort(285, Optional = true, Since = 1994)]
    public short Dimaltz { get; set; }

    /// <summary>Gets or sets $DIMALTTZ: which zeros of alternate tolerances are left out. Group code 286.</summary>
    [CadShort(286, Optional = true, Since = 1994)]
    public short Dimalttz { get; set; }

    /// <summary>Gets or sets $DIMFIT: what is moved when space is short, in releases 13 and 14. Group code
    /// 287.</summary>
    [CadShort(287, Optional = true, Since = 1994)]
    public short Dimfit { get; set; } = 3;

    /// <summary>Gets or sets $DIMUPT: whether the user places texts. Group code 288.</summary>
    [CadShort(288, Optional = true, Since = 1994)]
    public short Dimupt { get; set; }

    /// <summary>Gets or sets $DIMATFIT: what is moved when space is short. Group code 289.</summary>
    [CadShort(289, Optional = true, Since = 2000)]
    public short Dimatfit { get; set; } = 3;

    /// <summary>Gets or sets $DIMFXLON: whether extension lines have a fixed length. Group code 290.</summary>
    [CadShort(290, Optional = true, Since = 2007)]
    public short Dimfxlon { get; set; }

    /// <summary>Gets or sets $DIMTFILL: the background of the text: 0 nothing, 1 the background, 2 a colour. Group
    /// code 69.</summary>
    [CadShort(69, Optional = true, Since = 2007)]
    public short Dimtfill { get; set; }

    /// <summary>Gets or sets $DIMARCSYM: where the arc symbol is. Group code 90.</summary>
    [CadShort(90, Optional = true, Since = 2007)]
    public short Dimarcsym { get; set; }

    /// <summary>Gets or sets $DIMTXTDIRECTION: whether texts run from right to left. Group code 294.</summary>
    [CadShort(294, Optional = true, Since = 2010)]
    public short Dimtxtdirection { get; set; }

    /// <summary>Gets or sets $DIMTXSTY: the handle of the text style in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true, Since = 1994)]
    public string Dimtxsty { get; set; } = "";

    /// <summary>Gets or sets $DIMLDRBLK: the handle of the block of leader arrowheads in hexadecimal. Group code
    /// 341.</summary>
    [CadHandle(341, Optional = true, Since = 2000)]
    public string Dimldrblk { get; set; } = "";

    /// <summary>Gets or sets $DIMBLK: the handle of the block of arrowheads in hexadecimal. Group code 342.</summary>
    [CadHandle(342, Optional = true, Since = 2000)]
    public string Dimblk { get; set; } = "";

    /// <summary>Gets or sets $DIMBLK1: the handle of the block of the first arrowhead in hexadecimal. Group code
    /// 343.</summary>
    [CadHandle(343, Optional = true, Since = 2000)]
    public string Dimblk1 { get; set; } = "";

    /// <summary>Gets or sets $DIMBLK2: the handle of the block of the second arrowhead in hexadecimal. Group code
    /// 344.</summary>
    [CadHandle(344, Optional = true, Since = 2000)]
    public string Dimblk2 { get; set; } = "";

    /// <summary>Gets or sets $DIMLTYPE: the handle of the line type of dimension lines in hexadecimal. Group code
    /// 345.</summary>
    [CadHandle(345, Optional = true, Since = 2007)]
    public string Dimltype { get; set; } = "";

    /// <summary>Gets or sets $DIMLTEX1: the handle of the line type of the first extension line in hexadecimal. Group
    /// code 346.</summary>
    [CadHandle(346, Optional = true, Since = 2007)]
    public string Dimltex1 { get; set; } = "";

    /// <summary>Gets or sets $DIMLTEX2: the handle of the line type of the second extension line in hexadecimal.
    /// Group code 347.</summary>
    [CadHandle(347, Optional = true, Since = 2007)]
    public string Dimltex2 { get; set; } = "";

    /// <summary>Gets or sets $DIMLWD: the weight of dimension lines in hundredths of a millimetre; -2 by block. Group
    /// code 371.</summary>
    [CadShort(371, Optional = true, Since = 2000)]
    public short Dimlwd { get; set; } = -2;

    /// <summary>Gets or sets $DIMLWE: the weight of extension lines in hundredths of a millimetre; -2 by block. Group
    /// code 372.</summary>
    [CadShort(372, Optional = true, Since = 2000)]
    public short Dimlwe { get; set; } = -2;

    /// <summary>Gets or sets the name of the block of arrowheads in drawings up to release 14; empty for the default
    /// one. Group code 5.</summary>
    public string DimblkName { get; set; } = "";

    /// <summary>Gets or sets $DIMTFILLCLR: the colour index of the background of the text. Group code 70.</summary>
    public short Dimtfillclr { get; set; }

    /// <summary>Gets or sets the name of the block of the first arrowhead in drawings up to release 14. Group
    /// code 6.</summary>
    [CadString(6, Optional = true)]
    public string Dimblk1Name { get; set; } = "";

    /// <summary>Gets or sets the name of the block of the second arrowhead in drawings up to release 14. Group
    /// code 7.</summary>
    [CadString(7, Optional = true)]
    public string Dimblk2Name { get; set; } = "";

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 5:
                DimblkName = reader.GetString();
                break;
            case 70 when Dimtfill != 0:
                // The code of the flags, used again after the kind of fill.
                Dimtfillclr = reader.GetShort();
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        if (fields.Includes(0, DimblkName.Length > 0))
        {
            DimblkName = fields.Text(5, DimblkName);
        }

        if (fields.Includes(2007, Dimtfill != 0))
        {
            Dimtfillclr = fields.Color(70, Dimtfillclr);
        }
    }

    private void ExchangeFlag(BitExchange fields) =>
        Flags = (short)((Flags & ~1) | (fields.Bit((Flags & 1) != 0) ? 1 : 0));
}
