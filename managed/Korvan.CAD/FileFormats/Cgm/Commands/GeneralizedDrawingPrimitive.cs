using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Something to draw that the format has no element for; its number is registered, or private when
/// negative.</summary>
public sealed class GeneralizedDrawingPrimitive : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public GeneralizedDrawingPrimitive()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.GeneralizedDrawingPrimitive)
    {
    }

    /// <summary>Gets or sets what is drawn.</summary>
    public int Identifier { get; set; }

    /// <summary>Gets or sets the points, whose meaning what is drawn tells.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets further data.</summary>
    public byte[] Data { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        Identifier = x.Integer(Identifier);
        if (x.IsClearText)
        {
            ExchangeUncounted(x);
        }
        else
        {
            int count = x.Integer(Points.Count);
            Points = x.Counted(Points, count, static (y, point) => y.Point(point));
        }

        Data = x.Data(Data);
    }

    /// <summary>In clear text the data ends the list of points.</summary>
    private void ExchangeUncounted(ParameterExchange x)
    {
        if (!x.IsReading)
        {
            x.Points(Points);
            return;
        }

        Points = [];
        while (x.HasMore && !x.IsAtText)
        {
            Points.Add(x.Point(null));
        }
    }
}
