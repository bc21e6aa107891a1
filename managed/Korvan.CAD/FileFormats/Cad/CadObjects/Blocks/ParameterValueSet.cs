using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The values that a parameter may take: any, those of a list, or steps within a range.</summary>
[CadSequence]
[CadBits("BL Flags", "BD Minimum", "BD Maximum", "BD Increment", "BD[BS] Values")]
internal sealed partial class ParameterValueSet
{

    /// <summary>Gets or sets the description.</summary>
    internal string Description { get; set; } = "";

    /// <summary>Gets or sets flags: 1 a list, 2 a smallest value, 4 a largest value, 8 steps.</summary>
    internal int Flags { get; set; }

    internal double Minimum { get; set; }

    internal double Maximum { get; set; }

    internal double Increment { get; set; }

    internal List<double> Values { get; } = [];

    /// <summary>Carries the set.</summary>
    /// <param name="fields">What carries it.</param>
    /// <param name="codes">The group codes of the description, the flags, the smallest value and the number of
    /// values.</param>
    internal void Exchange(ObjectExchange fields, (int Text, int Flags, int Minimum, int Count) codes)
    {
        Description = fields.Text(codes.Text, Description);
        Flags = fields.Int32(codes.Flags, Flags);
        Minimum = fields.Double(codes.Minimum, Minimum);
        Maximum = fields.Double(codes.Minimum + 1, Maximum);
        Increment = fields.Double(codes.Minimum + 2, Increment);
        fields.Items(codes.Minimum + 3, Values, fields.Count(codes.Count, Values.Count));
    }
}
