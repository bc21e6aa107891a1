using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How direct colours lead to CIE XYZ.</summary>
public sealed class ColourCalibration : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ColourCalibration()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.ColourCalibration)
    {
    }

    /// <summary>Gets or sets what the calibration is for; 1 is the only registered one.</summary>
    public int CalibrationSelection { get; set; } = 1;

    /// <summary>Gets or sets X, Y and Z of white.</summary>
    public List<double> ReferenceWhite { get; set; } = [0.9505, 1, 1.0888];

    /// <summary>Gets or sets the matrix from linear R, G, B to X, Y, Z: nine numbers, row by row.</summary>
    public List<double> Matrix { get; set; } = [1, 0, 0, 0, 1, 0, 0, 0, 1];

    /// <summary>Gets or sets the red components whose linear values are told.</summary>
    public List<int> RedComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the red components, 0 to 1.</summary>
    public List<double> RedValues { get; set; } = [];

    /// <summary>Gets or sets the green components, as many as red ones.</summary>
    public List<int> GreenComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the green components.</summary>
    public List<double> GreenValues { get; set; } = [];

    /// <summary>Gets or sets the blue components, as many as red ones.</summary>
    public List<int> BlueComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the blue components.</summary>
    public List<double> BlueValues { get; set; } = [];

    /// <summary>Gets or sets places in the space of cyan, magenta, yellow and black, four components each.</summary>
    public List<int> GridLocations { get; set; } = [];

    /// <summary>Gets or sets X, Y and Z of each place, three numbers each.</summary>
    public List<double> GridValues { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        CalibrationSelection = x.Index(CalibrationSelection);
        ReferenceWhite = Reals(x, ReferenceWhite, 3);
        Matrix = Reals(x, Matrix, 9);
        int entries = x.Integer(RedComponents.Count);
        (RedComponents, RedValues) = Table(x, RedComponents, RedValues, entries);
        (GreenComponents, GreenValues) = Table(x, GreenComponents, GreenValues, entries);
        (BlueComponents, BlueValues) = Table(x, BlueComponents, BlueValues, entries);
        int places = x.Integer(GridLocations.Count / 4);
        GridLocations = Components(x, GridLocations, Items(places, 4));
        GridValues = Reals(x, GridValues, Items(places, 3));
    }

    private static int Items(int count, int each) =>
        count is >= 0 and <= int.MaxValue / 4
            ? count * each
            : throw new CgmDataException($"{count} is no count of places in the space of colours");

    private static List<double> Reals(ParameterExchange x, List<double> values, int count)
    {
        Require(x, values.Count, count);
        return x.Counted(values, count, static (y, value) => y.Real(value));
    }

    private static List<int> Components(ParameterExchange x, List<int> values, int count)
    {
        Require(x, values.Count, count);
        return x.Counted(values, count, static (y, value) => (int)y.ColorComponent(value));
    }

    private static (List<int> Components, List<double> Values) Table(
        ParameterExchange x, List<int> components, List<double> values, int count)
    {
        Require(x, components.Count, count);
        Require(x, values.Count, count);
        var readComponents = new List<int>();
        var readValues = new List<double>();
        for (int i = 0; i < count; i++)
        {
            if (x.IsReading && !x.HasMore)
            {
                throw new CgmDataException($"{count} entries are announced, but only {i} are there");
            }

            readComponents.Add((int)x.ColorComponent(x.IsReading ? 0 : components[i]));
            readValues.Add(x.Real(x.IsReading ? 0 : values[i]));
        }

        return (readComponents, readValues);
    }

    private static void Require(ParameterExchange x, int have, int need)
    {
        if (!x.IsReading && have != need)
        {
            throw new CgmDataException($"{need} numbers are needed, {have} are there");
        }
    }
}
