using System.Collections.Generic;
using System.Globalization;
using System.Linq;

namespace Korvan.CAD.CodecGen;

/// <summary>The statements that read and exchange one property.</summary>
internal static class FieldText
{
    /// <summary>The cases that take over the group codes of a property, without their end.</summary>
    public static IEnumerable<string> Cases(CadProperty property)
    {
        if (property.IsList)
        {
            return ListCases(property);
        }

        if (property.IsPart || property.Kind == "CadPresence")
        {
            return [];
        }

        if (property.IsRepeated)
        {
            return property.Count == 0 ? []
                : [$"case {property.Count}: {property.Name}.EnsureCapacity(reader.GetCount());"];
        }

        if (property.Kind == "CadSize")
        {
            return
            [
                $"case {property.Code}: {property.Name}.Width = reader.GetDouble();",
                $"case {property.SecondCode}: {property.Name}.Height = reader.GetDouble();",
            ];
        }

        return property.IsPoint ? PointCases(property)
            : [$"case {property.Code}: {property.Name} = {Read(property)};"];
    }

    /// <summary>The statement that exchanges a property in declared order, without its end.</summary>
    public static string Exchanged(CadProperty property, string space)
    {
        (int code, string name) = (property.Code, property.Name);
        string role = $"{space}.HandleRole.{property.HandleRole}";
        if (property.IsEnum)
        {
            return $"{name} = ({property.TypeName})fields.Enum({code}, (int){name})";
        }

        return property.Kind switch
        {
            "Cad2DPoint" or "Cad3DPoint" => $"fields.Point({code}, {name})",
            "CadSize" => $"fields.Size({code}, {property.SecondCode}, {name})",
            "CadList" => ExchangedList(property, role),
            "CadRepeated" => $"fields.Parts({name}, fields.Count({property.Count}, {name}.Count), "
                + "static (part, walk) => part.Exchange(walk))",
            "CadPresence" => $"{name} = fields.Includes(0, {name})",
            "CadPart" => $"{name}.Exchange(fields)",
            "CadHandle" => $"{name} = fields.Handle({code}, {role}, {name})",
            "CadName" => $"{name} = fields.Name({code}, {property.Table}, {name})",
            _ => $"{name} = fields.{Method(property.Kind)}({code}, {name})",
        };
    }

    /// <summary>The condition of a property that is left out of old releases or at its initial value.</summary>
    public static string Condition(CadProperty property)
    {
        return property is { Since: 0, Optional: false, When: "" } ? ""
            : $"if (fields.Includes({property.Since.ToString(CultureInfo.InvariantCulture)}, {Differs(property)})) ";
    }

    /// <summary>The statement that exchanges a property of a class whose fields come in declared order.</summary>
    public static string InSequence(CadProperty property, string space)
    {
        if (property.Count != 0 || !(property.IsList || property.IsRepeated))
        {
            return Exchanged(property, space);
        }

        string arguments = $"{property.Code}, {property.Name}";
        string max = property.Max == 0 ? "int.MaxValue" : property.Max.ToString(CultureInfo.InvariantCulture);
        return property switch
        {
            { IsRepeated: true } => $"fields.Run({arguments}, static (part, walk) => part.Exchange(walk), {max})",
            { ElementType: "String", Code: >= 320 } =>
                $"fields.RunOfHandles({arguments}, {space}.HandleRole.{property.HandleRole}, {max})",
            _ => $"fields.Run({arguments}, {max})",
        };
    }

    /// <summary>The condition under which a file has a property; empty for always.</summary>
    public static string Presence(CadProperty property)
    {
        string differs = Changed(property);
        return property is { Since: 0, Optional: false } ? ""
            : $"fields.Has({property.Code}, {property.Since.ToString(CultureInfo.InvariantCulture)}, "
                + $"{(differs.Length == 0 ? "true" : differs)})";
    }

    private static IEnumerable<string> PointCases(CadProperty property)
    {
        for (int axis = 0; axis < property.Axes; axis++)
        {
            yield return $"case {property.Code + (10 * axis)}: "
                + $"{property.Name}.{"XYZ"[axis]} = reader.GetDouble();";
        }
    }

    private static IEnumerable<string> ListCases(CadProperty property)
    {
        string name = property.Name;
        if (property.Count != 0)
        {
            yield return $"case {property.Count}: {name}.EnsureCapacity(reader.GetCount());";
        }

        if (property.Axes == 1)
        {
            yield return $"case {property.Code}: {name}.Add(reader.{ItemReader(property)}());";
            yield break;
        }

        yield return $"case {property.Code}: {name}.Add(new() {{ X = reader.GetDouble() }});";
        for (int axis = 1; axis < property.Axes; axis++)
        {
            yield return $"case {property.Code + (10 * axis)} when {name}.Count > 0: "
                + $"{name}[^1].{"XYZ"[axis]} = reader.GetDouble();";
        }
    }

    private static string ItemReader(CadProperty property) => property.ElementType switch
    {
        "Double" => "GetDouble",
        "Int32" => "GetInt",
        "Int16" => "GetShort",
        _ => property.Code >= 320 ? "GetHandleText" : "GetString",
    };

    private static string ExchangedList(CadProperty property, string role)
    {
        string count = $"fields.Count({property.Count}, {property.Name}.Count)";
        return property switch
        {
            { Axes: > 1 } => $"fields.Points({property.Code}, {property.Name}, {count})",
            { ElementType: "String", Code: >= 320 } =>
                $"fields.Handles({property.Code}, {role}, {property.Name}, {count})",
            _ => $"fields.Items({property.Code}, {property.Name}, {count})",
        };
    }

    private static string Read(CadProperty property)
    {
        string value = property.Kind switch
        {
            "CadDouble" => "reader.GetDouble()",
            "CadAngle" => "reader.GetAngle()",
            "CadInt" => "reader.GetInt()",
            "CadShort" or "CadColor" => "reader.GetShort()",
            "CadLong" => "reader.GetLong()",
            "CadBool" => "reader.GetInt() != 0",
            "CadHandle" => "reader.GetHandleText()",
            "CadBinary" => $"reader.AppendBinary({property.Name})",
            _ => "reader.GetString()",
        };
        return property.IsEnum ? $"({property.TypeName}){value}" : value;
    }

    private static string Method(string kind) => kind switch
    {
        "CadShort" => "Int16",
        "CadInt" => "Int32",
        "CadLong" => "Int64",
        "CadString" => "Text",
        _ => kind.Substring("Cad".Length),
    };

    private static string Differs(CadProperty property)
    {
        string[] conditions = [.. new[] { property.When, Changed(property) }.Where(part => part.Length > 0)];
        return conditions.Length == 0 ? "true" : string.Join(" && ", conditions);
    }

    private static string Changed(CadProperty property)
    {
        if (!property.Optional)
        {
            return "";
        }

        if (!property.IsPoint)
        {
            return property.Kind == "CadBinary" ? $"{property.Name}.Length > 0"
                : property.IsList || property.IsRepeated ? $"{property.Name}.Count > 0"
                : $"{property.Name} != {property.Initial ?? "default"}";
        }

        string initial = property.Initial ?? "new()";
        string arguments = initial.Substring(initial.IndexOf('(')).Trim('(', ')');
        string origin = property.Kind == "Cad3DPoint" ? "0, 0, 0" : "0, 0";
        return $"!{property.Name}.Is({(arguments.Length == 0 ? origin : arguments)})";
    }
}
