using System;
using System.Linq;
using System.Reflection;
using Korvan.CAD.Binding;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests;

/// <summary>Errors speak of members as Python programs name them.</summary>
public sealed class MessageTests
{
    public static TheoryData<Action, string> Refusals => new()
    {
        { static () => new JpegOptions { Quality = 500 }.ToString(), "quality cannot be 500. It has to be 1 to 100." },
        { static () => new CadRasterizationOptions { PageWidth = -5 }.ToString(),
            "page_width cannot be -5. A length of a page is finite and not below 0." },
        { static () => new CadRasterizationOptions { Zoom = float.NaN }.ToString(),
            "zoom cannot be NaN. A zoom is a finite number above 0." },
        { static () => new PdfOptions { Timeout = -1 }.ToString(), "timeout cannot be -1. It has to be 0 or more." },
        { static () => Image.Load("a.dxf", null!), "load_options must not be None." },
        { static () => Verify.NotBlank(" ", "fileName"), "file_name cannot be empty or blank." },
        { static () => throw Verify.OutOfRange("unitType", UnitType.Millimeter, "No."),
            "unit_type cannot be MILLIMETER. No." },
    };

    [Theory]
    [MemberData(nameof(Refusals))]
    public void Refused_values_are_told_by_property_and_value(Action refused, string message)
    {
        Assert.Equal(message, Assert.ThrowsAny<ArgumentException>(refused).Message);
    }

    [Fact]
    public void Every_setter_that_refuses_a_number_names_its_property()
    {
        string[] unnamed = [.. typeof(ImageOptionsBase).Assembly.GetExportedTypes()
            .Where(static type => type.Namespace == typeof(ImageOptionsBase).Namespace
                && type.GetConstructor([]) is not null && !type.IsAbstract)
            .SelectMany(static type => type.GetProperties()
                .Where(static p => p.SetMethod is { IsPublic: true }).Select(p => (type, p)))
            .Select(static one => Complaint(one.type, one.p)).OfType<string>()];
        Assert.Empty(unnamed);
    }

    private static string? Complaint(Type type, PropertyInfo property)
    {
        object? bad = property.PropertyType == typeof(int) ? int.MinValue
            : property.PropertyType == typeof(float) ? float.NaN
            : property.PropertyType == typeof(double) ? double.NaN : null;
        if (bad is null)
        {
            return null;
        }

        try
        {
            property.SetValue(Activator.CreateInstance(type), bad, BindingFlags.DoNotWrapExceptions, null, null, null);
            return null;
        }
        catch (ArgumentException e)
        {
            string name = Korvan.WrpGen.Naming.PythonName.Lower(property.Name);
            return e.Message.StartsWith(name + " cannot be ", StringComparison.Ordinal)
                && !e.Message.Contains("(Parameter") ? null : $"{type.Name}: {e.Message}";
        }
    }
}
