using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A text in a single line.</summary>
[CadObject("TEXT", Subclass = "AcDbText")]
[CadBits("ExchangeText()", "H StyleType")]
public partial class CadText : CadExtrudedEntityBase
{
    /// <summary>The group code of the vertical alignment of an attribute, for which that of a text is the field
    /// length.</summary>
    private protected const int AttributeAlignmentCode = 74;

    private const int AlignmentCode = 73;

    /// <summary>Creates the object with its defaults.</summary>
    public CadText()
    {
    }

    /// <summary>Gets or sets the start of the base line, in object coordinates. It counts when both alignments are 0.
    /// Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstAlignment { get; set; } = new();

    /// <summary>Gets or sets the cap height. Group code 40.</summary>
    [CadDouble(40)]
    public double TextHeight { get; set; } = 1;

    /// <summary>Gets or sets the text, with %% codes. Group code 1.</summary>
    [CadString(1)]
    public string DefaultValue { get; set; } = "";

    /// <summary>Gets or sets the direction of the base line, in degrees. Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double TextRotation { get; set; }

    /// <summary>Gets or sets the width factor of the characters. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the oblique angle of the characters, in degrees. Group code 51.</summary>
    [CadAngle(51, Optional = true)]
    public double ObliqueAngle { get; set; }

    /// <summary>Gets or sets the name of the text style. Group code 7.</summary>
    [CadName(7, SymbolTable.Style, Optional = true)]
    public string StyleType { get; set; } = "STANDARD";

    /// <summary>Gets or sets how the text is mirrored: 2 left to right, 4 upside down. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short TextGenerationFlags { get; set; }

    /// <summary>Gets or sets the horizontal alignment: 0 left, 1 centre, 2 right, 3 aligned, 4 middle, 5 fit. Group
    /// code 72.</summary>
    [CadShort(72, Optional = true)]
    public short HorizontalAlignment { get; set; }

    /// <summary>Gets or sets the point that the alignment refers to, in object coordinates. It counts when either
    /// alignment is not 0. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11, Optional = true)]
    public Cad3DPoint SecondAlignment { get; set; } = new();

    /// <summary>Gets or sets the vertical alignment: 0 base line, 1 bottom, 2 middle, 3 top. Group code 73.</summary>
    public short VerticalAlignment { get; set; }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code == AlignmentCode)
        {
            VerticalAlignment = reader.GetShort();
            taken = true;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        if (GetType() == typeof(CadText))
        {
            fields.BeginSubclass("AcDbText");
            ExchangeVerticalAlignment(fields, AlignmentCode);
        }
    }

    private protected bool ReadVerticalAlignment(int code, FieldReader reader)
    {
        if (code != AttributeAlignmentCode)
        {
            return false;
        }

        VerticalAlignment = reader.GetShort();
        return true;
    }

    private protected void ExchangeVerticalAlignment(ObjectExchange fields, int code)
    {
        if (fields.Includes(0, VerticalAlignment != 0))
        {
            VerticalAlignment = fields.Int16(code, VerticalAlignment);
        }
    }

    private protected void ExchangeText(BitExchange fields)
    {
        if (fields.Release >= 2000)
        {
            ExchangeSparseText(fields);
            return;
        }

        fields.FlatPoints(FirstAlignment, SecondAlignment);
        fields.Point3(ExtrusionDirection);
        Thickness = fields.BitDouble(Thickness);
        ObliqueAngle = fields.Angle(ObliqueAngle);
        TextRotation = fields.Angle(TextRotation);
        TextHeight = fields.BitDouble(TextHeight);
        ScaleX = fields.BitDouble(ScaleX);
        DefaultValue = fields.Text(DefaultValue);
        TextGenerationFlags = (short)fields.BitShort(TextGenerationFlags);
        HorizontalAlignment = (short)fields.BitShort(HorizontalAlignment);
        VerticalAlignment = (short)fields.BitShort(VerticalAlignment);
    }

    // A bit for each field that is at its default and left out.
    private void ExchangeSparseText(BitExchange fields)
    {
        int left = fields.RawByte(DefaultFields());
        double elevation = (left & 1) == 0 ? fields.RawDouble(FirstAlignment.Z) : 0;
        fields.RawPoint2(FirstAlignment);
        fields.SetElevation(elevation, FirstAlignment);
        if ((left & 2) == 0)
        {
            SecondAlignment.X = fields.DoubleAfter(SecondAlignment.X, FirstAlignment.X);
            SecondAlignment.Y = fields.DoubleAfter(SecondAlignment.Y, FirstAlignment.Y);
            fields.SetElevation(elevation, SecondAlignment);
        }

        fields.Extrusion(ExtrusionDirection);
        Thickness = fields.Thickness(Thickness);
        ObliqueAngle = (left & 4) == 0 ? fields.RawAngle(ObliqueAngle) : 0;
        TextRotation = (left & 8) == 0 ? fields.RawAngle(TextRotation) : 0;
        TextHeight = fields.RawDouble(TextHeight);
        ScaleX = (left & 16) == 0 ? fields.RawDouble(ScaleX) : 1;
        DefaultValue = fields.Text(DefaultValue);
        TextGenerationFlags = (left & 32) == 0 ? (short)fields.BitShort(TextGenerationFlags) : (short)0;
        HorizontalAlignment = (left & 64) == 0 ? (short)fields.BitShort(HorizontalAlignment) : (short)0;
        VerticalAlignment = (left & 128) == 0 ? (short)fields.BitShort(VerticalAlignment) : (short)0;
    }

    private int DefaultFields() => (FirstAlignment.Z == 0 ? 1 : 0)
        | (HorizontalAlignment == 0 && VerticalAlignment == 0 && SecondAlignment.Is(0, 0, 0) ? 2 : 0)
        | (ObliqueAngle == 0 ? 4 : 0)
        | (TextRotation == 0 ? 8 : 0)
        | (ScaleX == 1 ? 16 : 0)
        | (TextGenerationFlags == 0 ? 32 : 0)
        | (HorizontalAlignment == 0 ? 64 : 0)
        | (VerticalAlignment == 0 ? 128 : 0);
}
