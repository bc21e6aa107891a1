using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>A boundary of straight segments and arcs.</summary>
public class CadPolylineBoundaryPath : ICadBoundaryPath
{
    /// <summary>Creates a closed boundary without vertices.</summary>
    public CadPolylineBoundaryPath()
    {
    }

    /// <summary>Gets or sets whether the last vertex is joined to the first. Group code 73.</summary>
    public bool IsClosed { get; set; } = true;

    /// <summary>Gets the vertices, in object coordinates. The list is live. Group codes 10, 20.</summary>
    public IList<Cad2DPoint> Vertices { get; } = new CheckedList<Cad2DPoint>("vertices");

    /// <summary>Gets the bulges of the segments that begin at the vertices; empty where all are straight. The list is
    /// live. Group code 42.</summary>
    public List<double> Bulges { get; } = [];

    bool ICadBoundaryPath.ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 72:
                break;
            case 73:
                IsClosed = reader.GetInt() != 0;
                break;
            case 93:
                Vertices.EnsureCapacity(reader.GetCount());
                break;
            case 42 when Vertices.Count > 0:
                while (Bulges.Count < Vertices.Count - 1)
                {
                    Bulges.Add(0);
                }

                Bulges.Add(reader.GetDouble());
                break;
            default:
                return FieldLists.TryRead(code, 10, Vertices, reader);
        }

        return true;
    }

    void ICadBoundaryPath.Exchange(ObjectExchange fields)
    {
        bool hasBulges = fields.Bool(72, Bulges.Count > 0);
        IsClosed = fields.Bool(73, IsClosed);
        int count = fields.Count(93, Vertices.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Point(10, fields.Item(Vertices, i));
            if (hasBulges)
            {
                fields.ItemAt(42, Bulges, i, 0);
            }
        }
    }

    /// <inheritdoc/>
    void ICadBoundaryPath.ExchangeBits(BitExchange fields)
    {
        bool hasBulges = fields.Bit(Bulges.Count > 0);
        IsClosed = fields.Bit(IsClosed);
        int count = fields.CountLong(Vertices.Count);
        fields.Resize(Bulges, hasBulges ? count : 0);
        for (int i = 0; i < count; i++)
        {
            fields.RawPoint2(fields.Item(Vertices, i));
            if (hasBulges)
            {
                double bulge = fields.BitDouble(i < Bulges.Count ? Bulges[i] : 0);
                if (fields.IsReading)
                {
                    Bulges[i] = bulge;
                }
            }
        }
    }
}
