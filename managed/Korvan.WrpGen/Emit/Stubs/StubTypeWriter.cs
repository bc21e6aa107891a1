using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Stubs;

/// <summary>Writes the stub of one type, with those nested in it.</summary>
internal sealed class StubTypeWriter
{
    private readonly CodeWriter _writer;
    private readonly TypeModel _type;
    private readonly ILookup<TypeModel?, TypeModel> _nested;
    private readonly IReadOnlyList<MethodGroup> _groups;
    private readonly IReadOnlyList<PropertyModel> _properties;
    private readonly PythonTypes _types;

    private StubTypeWriter(
        CodeWriter writer, TypeModel type, ILookup<TypeModel?, TypeModel> nested, SortedSet<string> imports)
    {
        _writer = writer;
        _type = type;
        _nested = nested;
        _groups = MethodGroup.Of(type);
        _properties = MethodGroup.PropertiesOf(type);
        HashSet<string> names =
        [
            .. _groups.Select(group => group.PythonName),
            .. _properties.Concat(type.StaticProperties).Select(property => property.PythonName),
        ];
        _types = new PythonTypes(type.Module, names) { Imports = imports };
    }

    public static void Write(
        CodeWriter writer, TypeModel type, ILookup<TypeModel?, TypeModel> nested, SortedSet<string> imports)
    {
        var stub = new StubTypeWriter(writer, type, nested, imports);
        if (type.Kind == BoundKind.Enum)
        {
            stub.WriteEnum();
        }
        else
        {
            stub.WriteClass();
        }
    }

    private void WriteEnum()
    {
        string family = _type.IsIntegerEnum ? "IntEnum" : "IntFlag";
        _writer.Line($"class {_type.Name}({_types.Support("BoundEnum")}, enum.{family}):");
        _writer.Indented(() =>
        {
            Docstring.Write(_writer, _type.Doc);
            foreach (EnumMemberModel member in _type.EnumMembers)
            {
                bool isUnsigned = _type.Underlying!.Kind == ValueKind.UInt64;
                _writer.Line($"{member.PythonName} = {(isUnsigned ? ((ulong)member.Bits).ToString() : member.Bits)}");
                Docstring.Write(_writer, member.Doc);
            }
            if (_type.EnumMembers.Count == 0)
            {
                _writer.Line("...");
            }
        });
        _writer.Line();
    }

    private void WriteClass()
    {
        if (_type.Kind == BoundKind.Interface)
        {
            WriteImplementers();
        }
        _writer.Line($"class {_type.Name}({string.Join(", ", Bases())}):");
        _writer.Indented(() =>
        {
            Docstring.Write(_writer, _type.Doc);
            foreach (TypeModel nested in _nested[_type])
            {
                Write(_writer, nested, _nested, _types.Imports);
            }
            WriteStaticValues();
            WriteConstructors();
            WriteDisposal();
            WriteIndexer();
            foreach (PropertyModel property in _properties)
            {
                WriteProperty(property);
            }
            foreach (IGrouping<string, MethodGroup> name in _groups.GroupBy(group => group.PythonName))
            {
                WriteMethods([.. name]);
            }
            WriteStaticSetters();
            _writer.Line("...");
        });
        _writer.Line();
    }

    private IEnumerable<string> Bases()
    {
        TypeModel? bound = _type.Kind == BoundKind.Class ? _type.Base : null;
        string item = ItemOf(_type);
        yield return bound is null ? _types.Support("BoundObject")
            : bound.LeavesItemOpen ? $"{_types.Name(bound)}[{item}]"
            : _types.Name(bound);
        foreach (TypeModel one in _type.Kind == BoundKind.Interface ? [_type] : OwnInterfaces(bound))
        {
            yield return _types.Implementers(one);
        }
        string? view = _type.Protocol switch
        {
            CollectionProtocol.List => "ListView",
            CollectionProtocol.Collection when _type.ProtocolElement is not null => "CollectionView",
            CollectionProtocol.Collection => "ReadOnlyCollectionView",
            CollectionProtocol.ReadOnlyCollection => "ReadOnlyCollectionView",
            CollectionProtocol.ReadOnlyList => "ReadOnlyListView",
            CollectionProtocol.Iterable => "IterableView",
            _ => null,
        };
        if (view is not null && _type.Base?.Protocol != _type.Protocol)
        {
            yield return _types.Support($"{view}[{item}]");
        }
    }

    private string ItemOf(TypeModel type) =>
        type.ProtocolElement is { } element ? _types.Item(element)
        : type.WalkedItem is { } walked ? _types.Item(walked)
        : type.LeavesItemOpen ? _types.Support("Item")
        : "typing.Any";

    // At run time no type derives from an interface: it is only that parameters take what implements it.
    private void WriteImplementers()
    {
        string bases = string.Join(", ", OwnInterfaces(null).Select(_types.Implementers));
        _writer.Line($"class {PythonTypes.ImplementersName(_type)}{(bases.Length > 0 ? $"({bases})" : "")}:");
        _writer.Indented(() => _writer.Line($"\"\"\"What a parameter takes that is declared as {_type.Name}.\"\"\""));
        _writer.Line();
    }

    // Those that another one brings along are left out.
    private IEnumerable<TypeModel> OwnInterfaces(TypeModel? bound)
    {
        TypeModel[] all = [.. _type.Interfaces.Select(use => use.Interface)];
        return all.Where(one =>
            bound?.Interfaces.Any(use => use.Interface == one) != true &&
            !all.Any(other => other.Interfaces.Any(use => use.Interface == one)));
    }

    private void WriteStaticValues()
    {
        foreach (PropertyModel value in _type.StaticProperties)
        {
            _writer.Line($"{value.PythonName}: typing.Final[{_types.Result(value.Value)}]");
            Docstring.Write(_writer, value.Doc);
        }
    }

    private void WriteConstructors()
    {
        if (_type.Constructors.Count == 0)
        {
            // No value has this type, so a checker finds every call.
            _writer.Line("def __init__(self, *, no_constructor: typing.Never) -> None: ...");
        }
        foreach (MethodModel constructor in _type.Constructors)
        {
            WriteFunction("__init__", constructor, "None", _type.Constructors.Count > 1);
        }
    }

    private void WriteDisposal()
    {
        if (_type.IsDisposable && _type.Base is not { IsDisposable: true })
        {
            _writer.Line("def __enter__(self) -> typing.Self: ...");
            _writer.Line("def __exit__(self, *details: object) -> None: ...");
        }
    }

    private void WriteIndexer()
    {
        if (_type.Indexer is not { } indexer)
        {
            return;
        }
        string index = _types.Builtin("int");
        _writer.Line($"def __getitem__(self, index: {index}, /) -> {_types.Result(indexer.Value)}: ...");
        if (indexer.CanWrite)
        {
            _writer.Line(
                $"def __setitem__(self, index: {index}, value: {_types.Accepted(indexer.Value)}, /) -> None: ...");
        }
    }

    private void WriteProperty(PropertyModel property)
    {
        string name = property.PythonName;
        if (PythonName.IsKeyword(name))
        {
            _writer.Line($"# {name}: {_types.Result(property.Value)} (by getattr: the name is a keyword)");
            return;
        }
        _writer.Line($"@{_types.Builtin("property")}");
        WriteHeader($"def {name}(self) -> {_types.Result(property.Value)}:", property.Doc);
        if (property.CanWrite)
        {
            _writer.Line($"@{name}.setter");
            _writer.Line($"def {name}(self, value: {_types.Accepted(property.Given)}) -> None: ...");
        }
    }

    private void WriteMethods(IReadOnlyList<MethodGroup> forms)
    {
        MethodGroup main = forms[0];
        if (PythonName.IsKeyword(main.PythonName))
        {
            _writer.Line($"# {main.PythonName}(...) (by getattr: the name is a keyword)");
            return;
        }
        if (forms.Count > 1)
        {
            WriteMixed(main.PythonName, forms);
            return;
        }
        foreach (MethodModel overload in main.Overloads)
        {
            WriteFunction(main.PythonName, overload, _types.Result(overload.Result), main.Overloads.Count > 1);
        }
    }

    // One name is a method of instances and another one of the class.
    private void WriteMixed(string name, IReadOnlyList<MethodGroup> forms)
    {
        // The type's name keeps the forms of a derived type apart from those of its base.
        string words = string.Concat(name.Split('_').Select(word => char.ToUpperInvariant(word[0]) + word[1..]));
        string stem = $"_{_type.Name}{words}";
        foreach (MethodGroup form in forms)
        {
            _writer.Line($"class {stem}{(form.IsStatic ? "OnClass" : "OnInstance")}(typing.Protocol):");
            _writer.Indented(() =>
            {
                foreach (MethodModel overload in form.Overloads)
                {
                    bool isOverload = form.Overloads.Count > 1;
                    WriteFunction("__call__", overload, _types.Result(overload.Result), isOverload, hasSelf: true);
                }
            });
        }
        string mixed = _types.Support("MixedMethod");
        bool overrides = forms.SelectMany(form => form.Overloads).Any(overload => overload.Owner != _type);
        string note = overrides ? "  # type: ignore[override]" : "";
        _writer.Line($"{name}: {mixed}[{stem}OnInstance, {stem}OnClass]{note}");
    }

    private void WriteStaticSetters()
    {
        foreach (PropertyModel value in _type.StaticProperties.Where(property => property.CanWrite))
        {
            _writer.Line($"@{_types.Builtin("staticmethod")}");
            WriteHeader($"def set_{value.PythonName}(value: {_types.Accepted(value.Given)}, /) -> None:", value.Doc);
        }
    }

    private void WriteFunction(string name, MethodModel overload, string result, bool isOverload, bool hasSelf = false)
    {
        hasSelf |= !overload.IsStatic;
        if (isOverload)
        {
            _writer.Line("@typing.overload");
        }
        if (!hasSelf)
        {
            _writer.Line($"@{_types.Builtin("staticmethod")}");
        }
        IEnumerable<string> parameters = overload.Parameters.Select(Parameter);
        string list = string.Join(", ", hasSelf ? parameters.Prepend("self") : parameters);
        // Overloads that a base declares follow those of the class itself, in the order of trial.
        string note = isOverload && overload.Owner != _type ? "  # type: ignore[override]" : "";
        WriteHeader($"def {name}({list}) -> {result}:", overload.Doc, note);
    }

    private string Parameter(ParameterModel parameter)
    {
        string name = PythonName.IsKeyword(parameter.PythonName) ? parameter.PythonName + "_" : parameter.PythonName;
        return $"{name}: {_types.Parameter(parameter)}";
    }

    private void WriteHeader(string header, DocText doc, string note = "")
    {
        if (doc.IsEmpty)
        {
            _writer.Line(header + " ..." + note);
            return;
        }
        _writer.Line(header + note);
        _writer.Indented(() => Docstring.Write(_writer, doc));
    }
}
