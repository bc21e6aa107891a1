using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An outline of straight pieces and arcs.</summary>
public class CadPolylineBoundaryPath : ICadBoundaryPath
{
    /// <summary>Creates a closed outline without vertices.</summary>
    public CadPolylineBoundaryPath()
    {
    }

    /// <summary>Gets or sets whether the last vertex is joined to the first. Group code 73.</summary>
    public bool IsClosed { get; set; } = true;

    /// <summary>Gets the vertices, in object coordinates. The list is live. Group codes 10, 20.</summary>
    public IList<Cad2DPoint> Vertices { get; } = new CheckedList<Cad2DPoint>("vertices");

    /// <summary>Gets the bulges of the pieces that begin at the vertices; empty where all are straight. The list is
    /// live. Group code 42.</summary>
    public List<double> Bulges { get; } = [];

    bool ICadBoundaryPath.ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 72:
                break;
            case 73:
                IsClosed = tags.GetInt() != 0;
                break;
            case 93:
                Vertices.EnsureCapacity(tags.GetCount());
                break;
            case 42 when Vertices.Count > 0:
                while (Bulges.Count < Vertices.Count - 1)
                {
                    Bulges.Add(0);
                }

                Bulges.Add(tags.GetDouble());
                break;
            default:
                return PointLists.TryRead(code, 10, Vertices, tags);
        }

        return true;
    }

    void ICadBoundaryPath.WriteCodes(DxfTagWriter writer)
    {
        writer.Write(72, Bulges.Count > 0 ? 1 : 0);
        writer.Write(73, IsClosed ? 1 : 0);
        writer.Write(93, Vertices.Count);
        for (int i = 0; i < Vertices.Count; i++)
        {
            writer.Write(10, Vertices[i]);
            if (Bulges.Count > 0)
            {
                writer.Write(42, i < Bulges.Count ? Bulges[i] : 0);
            }
        }
    }
}
