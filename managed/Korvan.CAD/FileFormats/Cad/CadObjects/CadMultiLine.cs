using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Parallel lines along common vertices.</summary>
[CadObject("MLINE", Subclass = "AcDbMline")]
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
    [CadString(340, Optional = true)]
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
    public IList<CadMultiLineVectorBlock> Vertices { get; } = new CheckedList<CadMultiLineVectorBlock>("vertices");

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = true;
        if (code == 72)
        {
            Vertices.EnsureCapacity(tags.GetCount());
        }
        else if (code == 11)
        {
            Vertices.Add(new CadMultiLineVectorBlock());
            Vertices[^1].Location.X = tags.GetDouble();
        }
        else
        {
            taken = Vertices.Count > 0 && ReadVertex(code, Vertices[^1], tags);
        }
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        writer.Write(72, Vertices.Count);
        foreach (CadMultiLineVectorBlock vertex in Vertices)
        {
            writer.Write(11, vertex.Location);
            writer.Write(12, vertex.Direction);
            writer.Write(13, vertex.Miter);
            for (int i = 0; i < vertex.ElementParameters.Count; i++)
            {
                WriteLengths(writer, 74, 41, vertex.ElementParameters[i]);
                WriteLengths(writer, 75, 42, i < vertex.FillParameters.Count ? vertex.FillParameters[i] : []);
            }
        }
    }

    private static bool ReadVertex(int code, CadMultiLineVectorBlock vertex, DxfTagReader tags)
    {
        switch (code)
        {
            case 21:
                vertex.Location.Y = tags.GetDouble();
                return true;
            case 31:
                vertex.Location.Z = tags.GetDouble();
                return true;
            case 12:
                vertex.Direction.X = tags.GetDouble();
                return true;
            case 22:
                vertex.Direction.Y = tags.GetDouble();
                return true;
            case 32:
                vertex.Direction.Z = tags.GetDouble();
                return true;
            case 13:
                vertex.Miter.X = tags.GetDouble();
                return true;
            case 23:
                vertex.Miter.Y = tags.GetDouble();
                return true;
            case 33:
                vertex.Miter.Z = tags.GetDouble();
                return true;
            default:
                return ReadLengths(code, vertex, tags);
        }
    }

    private static bool ReadLengths(int code, CadMultiLineVectorBlock vertex, DxfTagReader tags)
    {
        switch (code)
        {
            case 74:
                vertex.ElementParameters.Add(new List<double>(tags.GetCount()));
                return true;
            case 75:
                vertex.FillParameters.Add(new List<double>(tags.GetCount()));
                return true;
            case 41 when vertex.ElementParameters.Count > 0:
                vertex.ElementParameters[^1].Add(tags.GetDouble());
                return true;
            case 42 when vertex.FillParameters.Count > 0:
                vertex.FillParameters[^1].Add(tags.GetDouble());
                return true;
            default:
                return false;
        }
    }

    private static void WriteLengths(DxfTagWriter writer, int countCode, int code, List<double> lengths)
    {
        writer.Write(countCode, lengths.Count);
        lengths.ForEach(length => writer.Write(code, length));
    }
}
