using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A text style.</summary>
[CadObject("STYLE", Subclass = "AcDbTextStyleTableRecord")]
[CadBits(
    "ExchangeRecord()", "ExchangeKind()", "BD TextHeight", "BD WidthFactor", "BD ObliqueAngle",
    "RC TextGenerationFlag", "BD LastHeight", "T PrimaryFontName", "T BigFontName")]
public partial class CadStyleTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadStyleTableObject()
    {
    }

    /// <summary>Gets the flags of the style.</summary>
    public CadFontStyleTableFlag StyleFlags => (CadFontStyleTableFlag)Flags;

    /// <summary>Gets or sets the fixed height; 0 for none. Group code 40.</summary>
    [CadDouble(40)]
    public double TextHeight { get; set; }

    /// <summary>Gets or sets the width factor of the characters. Group code 41.</summary>
    [CadDouble(41)]
    public double WidthFactor { get; set; } = 1;

    /// <summary>Gets or sets the oblique angle of the characters, in degrees. Group code 50.</summary>
    [CadAngle(50)]
    public double ObliqueAngle { get; set; }

    /// <summary>Gets or sets how the text is mirrored: 2 left to right, 4 upside down. Group code 71.</summary>
    [CadShort(71)]
    public short TextGenerationFlag { get; set; }

    /// <summary>Gets or sets the height used last. Group code 42.</summary>
    [CadDouble(42)]
    public double LastHeight { get; set; } = 0.2;

    /// <summary>Gets or sets the file name of the font. Group code 3.</summary>
    [CadString(3)]
    public string PrimaryFontName { get; set; } = "txt";

    /// <summary>Gets or sets the file name of the font for East Asian characters; empty for none. Group code
    /// 4.</summary>
    [CadString(4)]
    public string BigFontName { get; set; } = "";

    /// <summary>Gets or sets the family of a TrueType font, from the extended data of ACAD; empty for none.</summary>
    public string FontFamily
    {
        get => XdataOrNull?.Find("ACAD")?.Data.Find(static tag => tag.Attribute == 1000)?.Value ?? "";
        set
        {
            CadXdata? xdata = XdataContainer.Find("ACAD");
            if (xdata is null)
            {
                xdata = new CadXdata("ACAD");
                XdataContainer.XdataEntities.Add(xdata);
            }

            xdata.Data.Clear();
            xdata.Data.Add(new CadCodeValue(1000, value));
            xdata.Data.Add(new CadCodeValue(1071, "0"));
        }
    }

    private void ExchangeKind(BitExchange fields)
    {
        const int shapes = 1;
        const int vertical = 4;
        bool isShapeFile = fields.Bit((Flags & shapes) != 0);
        bool isVertical = fields.Bit((Flags & vertical) != 0);
        Flags = (short)((Flags & ~(shapes | vertical)) | (isShapeFile ? shapes : 0) | (isVertical ? vertical : 0));
    }
}
