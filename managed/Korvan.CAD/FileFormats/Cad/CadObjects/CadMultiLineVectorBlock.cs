using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A vertex of a multiline.</summary>
public partial class CadMultiLineVectorBlock
{
    /// <summary>Creates a vertex at the origin.</summary>
    public CadMultiLineVectorBlock()
    {
    }

    /// <summary>Gets or sets the position, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint Location { get; set; } = new();

    /// <summary>Gets or sets the direction of the segment that begins here. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint Direction { get; set; } = new();

    /// <summary>Gets or sets the direction of the mitre. Group codes 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint Miter { get; set; } = new();

    /// <summary>Gets the lengths along the mitre and the line where each line of the style begins and breaks, one
    /// array of tags for each line. Group codes 74, 41.</summary>
    internal List<List<double>> ElementParameters { get; } = [];

    /// <summary>Gets the lengths where the fill begins and breaks. Group codes 75, 42.</summary>
    internal List<List<double>> FillParameters { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 74:
                ElementParameters.Add(new List<double>(reader.GetCount()));
                break;
            case 75:
                FillParameters.Add(new List<double>(reader.GetCount()));
                break;
            case 41 when ElementParameters.Count > 0:
                ElementParameters[^1].Add(reader.GetDouble());
                break;
            case 42 when FillParameters.Count > 0:
                FillParameters[^1].Add(reader.GetDouble());
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        int elements = fields.Count(0, ElementParameters.Count);
        for (int i = 0; i < elements; i++)
        {
            ExchangeLengths(fields, 74, 41, ElementParameters, i);
            ExchangeLengths(fields, 75, 42, FillParameters, i);
        }
    }

    private static void ExchangeLengths(
        ObjectExchange fields, int countCode, int code, List<List<double>> all, int index)
    {
        if (fields.IsReading)
        {
            all.Add([]);
        }

        List<double> lengths = index < all.Count ? all[index] : [];
        fields.Items(code, lengths, fields.Count(countCode, lengths.Count));
    }

    /// <summary>Carries the vertex as drawing databases have it.</summary>
    internal void ExchangeBits(BitExchange fields, int elements)
    {
        fields.Point3(Location);
        fields.Point3(Direction);
        fields.Point3(Miter);
        for (int i = 0; i < elements; i++)
        {
            ExchangeLengths(fields, ElementParameters, i);
            ExchangeLengths(fields, FillParameters, i);
        }
    }

    private static void ExchangeLengths(BitExchange fields, List<List<double>> all, int index)
    {
        if (fields.IsReading)
        {
            all.Add([]);
        }

        List<double> lengths = index < all.Count ? all[index] : [];
        fields.Doubles(lengths, fields.CountShort(lengths.Count));
    }
}
