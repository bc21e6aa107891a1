using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.Binding;
using Xunit;

namespace Korvan.CAD.Tests.Surface;

public class CatalogueTests
{
    private static IEnumerable<Type> PublicTypes => typeof(Image).Assembly.GetExportedTypes();

    [CatalogueFact]
    public void Every_public_type_is_in_the_catalogue_with_its_kind()
    {
        Dictionary<string, string> catalogue = Rows().ToDictionary(row => $"{row[0]}.{row[2]}", row => row[1]);
        List<string> wrong = [];
        foreach (Type type in PublicTypes)
        {
            string name = NameOf(type);
            if (catalogue.GetValueOrDefault(name) != Kind(type) && name != "korvan.cad.disposableobject")
            {
                wrong.Add($"{name} ({Kind(type)}, catalogue: {catalogue.GetValueOrDefault(name, "missing")})");
            }
        }

        Assert.Empty(wrong);
    }

    [CatalogueFact]
    public void Every_enum_states_its_kind_as_the_catalogue_does()
    {
        Dictionary<string, string> kinds = Rows().Where(row => row[1] == "enum")
            .ToDictionary(row => $"{row[0]}.{row[2]}", row => row[3]);
        foreach (Type type in PublicTypes.Where(type => type.IsEnum))
        {
            string expected = kinds[NameOf(type)];
            EnumKind? stated = type.GetCustomAttribute<PythonEnumAttribute>()?.Kind;
            Assert.True((stated == EnumKind.Flag ? "IntFlag" : "IntEnum") == expected, $"{type.Name} is {expected}");
        }
    }

    [Fact]
    public void No_public_class_has_public_fields()
    {
        Assert.Empty(PublicTypes.Where(type => !type.IsEnum).SelectMany(type =>
            type.GetFields(
                BindingFlags.Public | BindingFlags.Instance | BindingFlags.Static | BindingFlags.DeclaredOnly)));
    }

    [Theory]
    [InlineData(nameof(FileFormat.Undefined), 0)]
    [InlineData(nameof(FileFormat.Pdf), 16777216)]
    [InlineData(nameof(FileFormat.CadR1_1), 65537)]
    [InlineData(nameof(FileFormat.DxfCadR2013), 65579)]
    [InlineData(nameof(FileFormat.ThreeDS), 65618)]
    [InlineData(nameof(FileFormat.Draco), 65619)]
    public void File_formats_have_fixed_values(string name, int value)
    {
        Assert.Equal(value, (int)Enum.Parse<FileFormat>(name));
        Assert.Equal(101, Enum.GetValues<FileFormat>().Length);
    }

    private static IEnumerable<string[]> Rows() =>
        File.ReadLines(SharedDrawings.Catalogue!).Skip(1).Select(line => line.Split('\t'));

    private static string NameOf(Type type) =>
        $"{type.Namespace!.ToLowerInvariant()}.{type.FullName![(type.Namespace.Length + 1)..].Replace('+', '.')}";

    private static string Kind(Type type) => type switch
    {
        { IsEnum: true } => "enum",
        { IsValueType: true } => "struct",
        { IsInterface: true } => "interface",
        _ => "class",
    };

    [AttributeUsage(AttributeTargets.Method)]
    private sealed class CatalogueFactAttribute : FactAttribute
    {
        public CatalogueFactAttribute()
        {
            Skip = SharedDrawings.Catalogue is null ? "There is no shared/catalogue.tsv beside the checkout." : null;
        }
    }
}
