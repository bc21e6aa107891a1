using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;

/// <summary>A style of multilines.</summary>
[CadObject("MLINESTYLE", Subclass = "AcDbMlineStyle")]
[CadBits(
    "T StyleName", "T Description", "ExchangeFlags()", "CMC FillColorId", "BD StartAngle", "BD EndAngle",
    "Part[RC] Elements")]
public partial class CadMLineStyleObject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMLineStyleObject()
    {
    }

    /// <summary>Gets or sets the name. Group code 2.</summary>
    [CadString(2)]
    public string StyleName { get; set; } = "";

    /// <summary>Gets or sets bits: 1 filled, 2 mitres shown, 16 square, 64 round and 256 inner arcs at the start,
    /// 512, 1024 and 2048 at the end. Group code 70.</summary>
    [CadShort(70)]
    public short Flags { get; set; }

    /// <summary>Gets or sets the description. Group code 3.</summary>
    [CadString(3)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the colour index of the fill. Group code 62.</summary>
    [CadColor(62)]
    public short FillColorId { get; set; } = 256;

    /// <summary>Gets or sets the angle of the start, in degrees. Group code 51.</summary>
    [CadAngle(51)]
    public double StartAngle { get; set; } = 90;

    /// <summary>Gets or sets the angle of the end, in degrees. Group code 52.</summary>
    [CadAngle(52)]
    public double EndAngle { get; set; } = 90;

    /// <summary>Gets the lines of the style. The list is live.</summary>
    [CadRepeated(49, Count = 71)]
    public IList<CadMLineStyleElement> Elements { get; } = new CheckedList<CadMLineStyleElement>("elements");

    // Pairs of flags have changed places.
    private void ExchangeFlags(BitExchange fields)
    {
        int flags = fields.BitShort(Swap(Flags));
        Flags = (short)Swap(flags);
    }

    private static int Swap(int flags) => (flags & ~0x663) | ((flags & 1) << 1) | ((flags & 2) >> 1)
        | ((flags & 0x20) << 1) | ((flags & 0x40) >> 1) | ((flags & 0x200) << 1) | ((flags & 0x400) >> 1);
}
