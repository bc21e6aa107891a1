using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An outline of edges of several kinds.</summary>
public class CadEdgeBoundaryPath : ICadBoundaryPath
{
    /// <summary>Creates an outline without edges.</summary>
    public CadEdgeBoundaryPath()
    {
    }

    /// <summary>Gets the edges in order. The list is live. Group code 72.</summary>
    public IList<ICadBoundaryPathEntity> Edges { get; } = new CheckedList<ICadBoundaryPathEntity>("edges");

    bool ICadBoundaryPath.ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 93:
                Edges.EnsureCapacity(tags.GetCount());
                return true;
            case 72:
                Edges.Add(Create(tags));
                return true;
            default:
                return Edges.Count > 0 && Edges[^1].ReadCode(code, tags);
        }
    }

    void ICadBoundaryPath.WriteCodes(DxfTagWriter writer)
    {
        writer.Write(93, Edges.Count);
        foreach (ICadBoundaryPathEntity edge in Edges)
        {
            writer.Write(72, (int)edge.EdgeType);
            edge.WriteCodes(writer);
        }
    }

    private static ICadBoundaryPathEntity Create(DxfTagReader tags)
    {
        int kind = tags.GetInt();
        return (CadHatchBoundaryType)kind switch
        {
            CadHatchBoundaryType.Line => new CadBoundaryPathLine(),
            CadHatchBoundaryType.CircularArc => new CadBoundaryPathCircularArc(),
            CadHatchBoundaryType.EllipticArc => new CadBoundaryPathCircularEllipse(),
            CadHatchBoundaryType.Spline => new CadBoundaryPathSpline(),
            _ => throw tags.Fail($"group code 72 has the value {kind}; the kind of an edge is 1 to 4"),
        };
    }
}
