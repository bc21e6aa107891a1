using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>
/// The facts of one edition, read from its table. The notation is told by the tool that writes the tables,
/// <c>tools/express_tables.py</c>. The same source serves the library and what writes the classes of an edition.
/// </summary>
internal sealed class SchemaTable
{
    private static readonly Dictionary<string, SchemaShape> s_simple =
        new Dictionary<string, SchemaShape>(StringComparer.Ordinal)
        {
            ["STRING"] = SchemaShape.Text,
            ["REAL"] = SchemaShape.Real,
            ["NUMBER"] = SchemaShape.Real,
            ["INTEGER"] = SchemaShape.Integer,
            ["BOOLEAN"] = SchemaShape.Boolean,
            ["LOGICAL"] = SchemaShape.Logical,
            ["BINARY"] = SchemaShape.Binary,
        };

    private SchemaTable(string name)
    {
        Name = name;
    }

    /// <summary>Gets the name of the schema: IFC2X3, IFC4 or IFC4X3.</summary>
    internal string Name { get; }

    internal Dictionary<string, SchemaEntity> Entities { get; } =
        new Dictionary<string, SchemaEntity>(StringComparer.Ordinal);

    internal Dictionary<string, SchemaDefinedType> DefinedTypes { get; } =
        new Dictionary<string, SchemaDefinedType>(StringComparer.Ordinal);

    internal Dictionary<string, SchemaChoice> Enumerations { get; } =
        new Dictionary<string, SchemaChoice>(StringComparer.Ordinal);

    internal Dictionary<string, SchemaChoice> Selects { get; } =
        new Dictionary<string, SchemaChoice>(StringComparer.Ordinal);

    /// <summary>Reads a table.</summary>
    internal static SchemaTable Read(TextReader reader)
    {
        var table = new SchemaTable(Words(reader.ReadLine() ?? string.Empty)[1]);
        SchemaEntity? entity = null;
        while (reader.ReadLine() is { } line)
        {
            string[] words = Words(line);
            if (line[0] == ' ')
            {
                AddMember(entity!, words);
            }
            else
            {
                entity = table.Add(words);
            }
        }

        return table;
    }

    /// <summary>Tells what values of a form are, through the names of defined types.</summary>
    internal SchemaShape ShapeOf(SchemaForm form)
    {
        while (form.Element is null)
        {
            if (s_simple.TryGetValue(form.Name, out SchemaShape simple))
            {
                return simple;
            }

            if (!DefinedTypes.TryGetValue(form.Name, out SchemaDefinedType? defined))
            {
                return Entities.ContainsKey(form.Name) ? SchemaShape.Entity
                    : Selects.ContainsKey(form.Name) ? SchemaShape.Select
                    : Enumerations.ContainsKey(form.Name) ? SchemaShape.Enumeration
                    : throw new InvalidDataException($"The table of {Name} has no type '{form.Name}'.");
            }

            form = defined.Form;
        }

        return SchemaShape.Aggregate;
    }

    /// <summary>Gives the form of the elements of an aggregate, through the names of defined types.</summary>
    internal SchemaForm ElementOf(SchemaForm form)
    {
        while (form.Element is null)
        {
            form = DefinedTypes[form.Name].Form;
        }

        return form.Element;
    }

    private static string[] Words(string line) => line.Split(new[] { ' ' }, StringSplitOptions.RemoveEmptyEntries);

    private static void AddMember(SchemaEntity entity, string[] words)
    {
        switch (words[0])
        {
            case "*":
                entity.Derived.Add(words[1].Substring(words[1].IndexOf('.') + 1));
                break;
            case "<":
                entity.Inverses.Add(new SchemaInverse(words[1], words[2], words[3], SchemaForm.Parse(words[4])));
                break;
            default:
                bool isOptional = words[1] == "?";
                SchemaForm form = SchemaForm.Parse(words[words.Length - 1]);
                entity.Attributes.Add(new SchemaAttribute(words[0], isOptional, form));
                break;
        }
    }

    private SchemaEntity? Add(string[] words)
    {
        string name = words[1];
        switch (words[0])
        {
            case "type":
                DefinedTypes.Add(name, new SchemaDefinedType(name, SchemaForm.Parse(words[2])));
                return null;
            case "enum":
                Enumerations.Add(name, new SchemaChoice(name, Tail(words)));
                return null;
            case "select":
                Selects.Add(name, new SchemaChoice(name, Tail(words)));
                return null;
            default:
                string? baseName = words.Length > 3 && words[2] == ":" ? words[3] : null;
                bool isAbstract = words[words.Length - 1] == "abstract";
                var entity = new SchemaEntity(name, baseName, isAbstract);
                Entities.Add(name, entity);
                return entity;
        }
    }

    private static string[] Tail(string[] words)
    {
        string[] tail = new string[words.Length - 2];
        Array.Copy(words, 2, tail, 0, tail.Length);
        return tail;
    }
}
