using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Areas bounded by lines, which can have holes and hidden edges.</summary>
public sealed class PolygonSet : Command
{
    private static readonly string[] Words = ["INVIS", "VIS", "CLOSEINVIS", "CLOSEVIS"];

    /// <summary>Creates no areas.</summary>
    public PolygonSet()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.PolygonSet)
    {
    }

    /// <summary>What follows a point.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum EdgeFlag
    {
        /// <summary>An edge that is not drawn leads to the next point.</summary>
        Invisible = 0,

        /// <summary>An edge leads to the next point.</summary>
        Visible = 1,

        /// <summary>An edge that is not drawn leads back to the first point of this area; the next one begins
        /// another.</summary>
        CloseInvisible = 2,

        /// <summary>An edge leads back to the first point of this area; the next one begins another.</summary>
        CloseVisible = 3,
    }

    /// <summary>Gets or sets the points.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets, for each point, what follows it.</summary>
    public List<EdgeFlag> Flags { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        if (x.IsReading)
        {
            Read(x);
            return;
        }

        if (Points.Count != Flags.Count)
        {
            throw new CgmDataException($"{Points.Count} points have {Flags.Count} flags");
        }

        for (int i = 0; i < Points.Count; i++)
        {
            x.Point(Points[i]);
            x.Enumeration(Flags[i], Words);
        }
    }

    private void Read(ParameterExchange x)
    {
        Points = [];
        Flags = [];
        while (x.HasMore)
        {
            Points.Add(x.Point(null));
            Flags.Add(x.Enumeration(default(EdgeFlag), Words));
        }
    }
}
