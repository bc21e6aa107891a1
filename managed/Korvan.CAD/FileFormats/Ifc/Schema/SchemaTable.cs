using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>
/// The declarations of one schema version, read from its table. <c>tools/express_tables.py</c> writes the tables and
/// documents their syntax. The library and the source generator share this file.
/// </summary>
internal sealed class SchemaTable
{
    private static readonly Dictionary<string, SchemaShape> SimpleTypes =
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
        var table = new SchemaTable(Tokens(reader.ReadLine() ?? string.Empty)[1]);
        SchemaEntity? entity = null;
        while (reader.ReadLine() is { } line)
        {
            string[] tokens = Tokens(line);
            if (line[0] == ' ')
            {
                AddMember(entity!, tokens);
            }
            else
            {
                entity = table.Add(tokens);
            }
        }

        return table;
    }

    /// <summary>Returns the kind of the values of a form; names of defined types are resolved.</summary>
    internal SchemaShape ShapeOf(SchemaForm form)
    {
        while (form.Element is null)
        {
            if (SimpleTypes.TryGetValue(form.Name, out SchemaShape simple))
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

    /// <summary>Returns the form of the elements of an aggregate; names of defined types are resolved.</summary>
    internal SchemaForm ElementOf(SchemaForm form)
    {
        while (form.Element is null)
        {
            form = DefinedTypes[form.Name].Form;
        }

        return form.Element;
    }

    private static string[] Tokens(string line) => line.Split(new[] { ' ' }, StringSplitOptions.RemoveEmptyEntries);

    private static void AddMember(SchemaEntity entity, string[] tokens)
    {
        switch (tokens[0])
        {
            case "*":
                entity.Derived.Add(tokens[1].Substring(tokens[1].IndexOf('.') + 1));
                break;
            case "<":
                entity.Inverses.Add(new SchemaInverse(tokens[1], tokens[2], tokens[3], SchemaForm.Parse(tokens[4])));
                break;
            default:
                bool isOptional = tokens[1] == "?";
                SchemaForm form = SchemaForm.Parse(tokens[tokens.Length - 1]);
                entity.Attributes.Add(new SchemaAttribute(tokens[0], isOptional, form));
                break;
        }
    }

    private SchemaEntity? Add(string[] tokens)
    {
        string name = tokens[1];
        switch (tokens[0])
        {
            case "type":
                DefinedTypes.Add(name, new SchemaDefinedType(name, SchemaForm.Parse(tokens[2])));
                return null;
            case "enum":
                Enumerations.Add(name, new SchemaChoice(name, Tail(tokens)));
                return null;
            case "select":
                Selects.Add(name, new SchemaChoice(name, Tail(tokens)));
                return null;
            default:
                string? baseName = tokens.Length > 3 && tokens[2] == ":" ? tokens[3] : null;
                bool isAbstract = tokens[tokens.Length - 1] == "abstract";
                var entity = new SchemaEntity(name, baseName, isAbstract);
                Entities.Add(name, entity);
                return entity;
        }
    }

    private static string[] Tail(string[] tokens)
    {
        string[] tail = new string[tokens.Length - 2];
        Array.Copy(tokens, 2, tail, 0, tail.Length);
        return tail;
    }
}
