using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>A boundary path of edges of several types.</summary>
public class CadEdgeBoundaryPath : ICadBoundaryPath
{
    /// <summary>Creates a boundary path without edges.</summary>
    public CadEdgeBoundaryPath()
    {
    }

    /// <summary>Gets the edges in order. The list is live. Group code 72.</summary>
    public IList<ICadBoundaryPathEntity> Edges { get; } = new CheckedList<ICadBoundaryPathEntity>("edges");

    bool ICadBoundaryPath.ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 93:
                Edges.EnsureCapacity(reader.GetCount());
                return true;
            case 72:
                int kind = reader.GetInt();
                Edges.Add(Create(kind) ?? throw reader.BadValue(BadKind(kind)));
                return true;
            default:
                return Edges.Count > 0 && Edges[^1].ReadField(code, reader);
        }
    }

    void ICadBoundaryPath.Exchange(ObjectExchange fields)
    {
        int count = fields.Count(93, Edges.Count);
        for (int i = 0; i < count; i++)
        {
            int kind = fields.Enum(72, i < Edges.Count ? (int)Edges[i].EdgeType : 0);
            if (fields.IsReading)
            {
                Edges.Add(Create(kind) ?? throw new ImageLoadException(BadKind(kind)));
            }

            Edges[i].Exchange(fields);
        }
    }

    private static ICadBoundaryPathEntity? Create(int kind) => (CadHatchBoundaryType)kind switch
    {
        CadHatchBoundaryType.Line => new CadBoundaryPathLine(),
        CadHatchBoundaryType.CircularArc => new CadBoundaryPathCircularArc(),
        CadHatchBoundaryType.EllipticArc => new CadBoundaryPathCircularEllipse(),
        CadHatchBoundaryType.Spline => new CadBoundaryPathSpline(),
        _ => null,
    };

    private static string BadKind(int kind) =>
        $"Group code 72 has the value {kind}; the type of a hatch edge is 1 to 4";

    /// <inheritdoc/>
    void ICadBoundaryPath.ExchangeBits(BitExchange fields)
    {
        int count = fields.CountLong(Edges.Count);
        for (int i = 0; i < count; i++)
        {
            int kind = fields.RawByte(i < Edges.Count ? (int)Edges[i].EdgeType : 0);
            if (fields.IsReading)
            {
                Edges.Add(Create(kind)
                    ?? throw fields.Fault($"the type of a hatch edge is {kind}; 1 to 4 is expected"));
            }

            Edges[i].ExchangeBits(fields);
        }
    }
}
