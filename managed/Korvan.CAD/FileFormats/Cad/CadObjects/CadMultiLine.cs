using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Parallel lines along common vertices.</summary>
[CadObject("MLINE", Subclass = "AcDbMline")]
[CadBits(
    "BD ScaleFactor", "RC Justification", "3BD StartPoint", "3BD ExtrusionDirection", "BS Flags",
    "ExchangeVertices()", "H StyleHandle")]
public partial class CadMultiLine : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMultiLine()
    {
    }

    /// <summary>Gets or sets the name of the style. Group code 2.</summary>
    [CadString(2)]
    public string StyleName { get; set; } = "STANDARD";

    /// <summary>Gets or sets the handle of the style in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string StyleHandle { get; set; } = "";

    /// <summary>Gets or sets the factor on the offsets of the style. Group code 40.</summary>
    [CadDouble(40)]
    public double ScaleFactor { get; set; } = 1;

    /// <summary>Gets or sets which line runs along the vertices: 0 the uppermost, 1 the middle, 2 the lowest. Group
    /// code 70.</summary>
    [CadShort(70)]
    public short Justification { get; set; }

    /// <summary>Gets or sets properties of the multiline. Group code 71.</summary>
    [CadShort(71)]
    public CadMultiLineFlag Flags { get; set; } = CadMultiLineFlag.HasVertices;

    /// <summary>Gets or sets the number of lines in the style. Group code 73.</summary>
    [CadShort(73)]
    public short ElementCount { get; set; } = 2;

    /// <summary>Gets or sets the start point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint StartPoint { get; set; } = new();

    /// <summary>Gets or sets the unit normal of the plane of the multiline. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets the vertices. The list is live.</summary>
    [CadRepeated(11, Count = 72)]
    public IList<CadMultiLineVectorBlock> Vertices { get; } = new CheckedList<CadMultiLineVectorBlock>("vertices");

    private void ExchangeVertices(BitExchange fields)
    {
        ElementCount = (short)fields.CountByte(ElementCount);
        int count = fields.CountShort(Vertices.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Item(Vertices, i).ExchangeBits(fields, ElementCount);
        }
    }
}
