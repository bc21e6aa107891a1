using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>Writes the tables of one class, struct or interface.</summary>
internal sealed class TypeUnitWriter(CodeWriter writer, BindingModel model, TypeModel type)
{
    private const int ParametersPerLine = 4;

    private readonly string _symbol = type.Symbol;
    private readonly List<string> _methodRows = [];
    private readonly List<string> _mixedRows = [];
    private readonly List<string> _getsetRows = [];
    private readonly List<string> _staticRows = [];

    public void Write()
    {
        writer.Line($"// {type.ManagedName}");
        string managedClass = $"{type.WrapperNamespace}.{type.WrapperClass}";
        HostWriter.Write(writer, $"PyHost_cs_{_symbol}", managedClass, type.Delegates);
        WriteConstructors();
        WriteMethods();
        WriteProperties();
        WriteMethodTable();
        WriteTable("PyGetSetDef", $"wrpPy_typd_{_symbol}", _getsetRows);
        WriteTable("PyGetSetDef", $"wrpPy_sgsf_{_symbol}", _staticRows);
        WriteTable("const MixedMethod", $"wrpPy_mxml_{_symbol}", _mixedRows);
        WriteInterfaces("additional", InterfaceList(type.Interfaces));
        WriteInterfaces("implicit", InterfaceList(type.Interfaces.Where(use => !use.IsExplicit)));
        WriteReferences();
        WriteCollection();
        WriteBinding();
    }

    private void WriteConstructors()
    {
        if (type.Constructors.Count > 0)
        {
            WriteGroup($"{_symbol}_ctor", new MethodGroup("ctor", IsStatic: false, type.Constructors));
        }
    }

    private void WriteMethods()
    {
        foreach (IGrouping<string, MethodGroup> name in MethodGroup.Of(type).GroupBy(group => group.PythonName))
        {
            string row = name.Count() == 1 ? "KORVAN_METHOD" : "KORVAN_MIXED";
            string[] rows = [.. name.Select(group => WriteForm(group, row))];
            if (rows.Length < 2)
            {
                _methodRows.AddRange(rows);
                continue;
            }
            string table = $"wrpPy_mxml_{_symbol}";
            writer.Line($"static PyMethodDef {table}_000_{name.Key}[] = {{{rows[0]}, {{}}}};");
            writer.Line($"static PyMethodDef {table}_001_{name.Key}[] = {{{rows[1]}, {{}}}};");
            _mixedRows.Add($"{{{table}_001_{name.Key}, {table}_000_{name.Key}}}");
        }
    }

    // Writes the tables of a method and gives the row of the method table that names them.
    private string WriteForm(MethodGroup group, string row)
    {
        string name = $"{_symbol}_{(group.IsStatic ? "static_" : "")}{group.PythonName}";
        WriteGroup(name, group);
        bool takesNothing = group.Overloads.Count == 1 && group.Overloads[0].Parameters.Count == 0;
        string macro = row + (group.IsStatic ? "_STATIC" : "") + (takesNothing ? "_NOARGS" : "");
        string doc = MethodDocs.Literal(type, group, isMixed: row == "KORVAN_MIXED");
        return $"{macro}(\"{group.PythonName}\", method_{name}, {doc})";
    }

    private void WriteGroup(string name, MethodGroup group)
    {
        string[] rows =
        [
            .. group.Overloads.Select((overload, at) => WriteOverload($"parameters_{name}_{at:000}", overload)),
        ];
        writer.Line($"static const Overload overloads_{name}[] = {{");
        writer.Indented(() => Array.ForEach(rows, row => writer.Line(row + ",")));
        writer.Line("};");
        string isStatic = group.IsStatic ? ", true" : "";
        writer.Line(
            $"static const Method method_{name} = {{&class_{_symbol}, overloads_{name}, {rows.Length}{isStatic}}};");
    }

    private string WriteOverload(string parameters, MethodModel overload)
    {
        IEnumerable<string> policies = overload.Parameters.Select(CppValues.Argument);
        string call = overload.IsConstructor ? "construct" : overload.IsStatic ? "call_static" : "call";
        IEnumerable<string> arguments =
            overload.IsConstructor ? policies : policies.Prepend(CppValues.Result(overload.Result));
        string table = "nullptr";
        if (overload.Parameters.Count > 0)
        {
            table = parameters;
            WriteParameters(parameters, overload.Parameters);
        }
        int slot = overload.Owner.SlotOf(overload.Delegate);
        string resultType = CppValues.Binding(overload.Result) ?? "nullptr";
        return $"{{&PyHost_cs_{overload.Owner.Symbol}, {slot}, {overload.Parameters.Count}, {table}, {resultType}, " +
            $"{call}<{string.Join(", ", arguments)}>}}";
    }

    private void WriteParameters(string name, IReadOnlyList<ParameterModel> parameters)
    {
        writer.Line($"static const Parameter {name}[] = {{");
        writer.Indented(() =>
        {
            foreach (ParameterModel[] line in parameters.Chunk(ParametersPerLine))
            {
                writer.Line(string.Join(", ", line.Select(Row)) + ",");
            }
        });
        writer.Line("};");
    }

    private static string Row(ParameterModel parameter) => CppValues.Binding(parameter.Value) is { } binding
        ? $"{{\"{parameter.PythonName}\", {binding}}}"
        : $"{{\"{parameter.PythonName}\"}}";

    private void WriteProperties()
    {
        foreach (PropertyModel property in MethodGroup.PropertiesOf(type))
        {
            WriteProperty(property, _getsetRows);
        }
        foreach (PropertyModel property in type.StaticProperties)
        {
            WriteProperty(property, _staticRows);
        }
    }

    private void WriteProperty(PropertyModel property, List<string> rows)
    {
        string result = CppValues.Result(property.Value);
        string name = $"property_{_symbol}_{property.PythonName}";
        TypeModel owner = property.Owner;
        string setSlot = property.CanWrite ? owner.SlotOf(property.Setter).ToString() : "no_slot";
        string slots = $"{owner.SlotOf(property.Getter)}, {setSlot}";
        string guard = property.IsStatic ? $", &class_{_symbol}" : "";
        writer.Line($"static const Property {name} = {{&PyHost_cs_{owner.Symbol}, {slots}, " +
            $"{CppValues.Binding(property.Value) ?? "nullptr"}{guard}}};");
        string get = property.IsStatic ? $"get_static<{result}>" : $"get<{result}>";
        string set = property.CanWrite && !property.IsStatic ? $"set<{CppValues.Argument(property.Value)}>" : "nullptr";
        rows.Add($"{{\"{property.PythonName}\", {get}, {set}, nullptr, closure({name})}}");
    }

    private void WriteMethodTable()
    {
        IEnumerable<string> setters =
            from property in type.StaticProperties
            where property.CanWrite
            select $"KORVAN_STATIC_SETTER(\"set_{property.PythonName}\", " +
                $"property_{_symbol}_{property.PythonName}, {CppValues.Argument(property.Value)}, " +
                $"{MethodDocs.Literal(property)})";
        bool opens = type.IsDisposable && type.Base is not { IsDisposable: true };
        WriteTable("PyMethodDef", $"wrpPy_tymd_{_symbol}",
        [
            .. opens ? ["KORVAN_ENTER_EXIT"] : (IEnumerable<string>)[],
            .. _methodRows,
            type.Kind == BoundKind.Struct ? "KORVAN_GET_TYPE_OF_STRUCT" : "KORVAN_GET_TYPE_OF_OBJECT",
            .. setters,
            $"KORVAN_CAST_METHODS(class_{_symbol})",
        ]);
    }

    private void WriteTable(string rowType, string name, IReadOnlyList<string> rows)
    {
        if (rows.Count == 0)
        {
            return;
        }
        writer.Line($"static {rowType} {name}[] = {{");
        writer.Indented(() =>
        {
            foreach (string row in rows)
            {
                writer.Line(row + ",");
            }
            writer.Line("{}");
        });
        writer.Line("};");
    }

    private string[] InterfaceList(IEnumerable<InterfaceUse> uses) =>
    [
        .. uses.Select(use => $"&class_{use.Interface.Symbol}"),
        .. type.IsDisposable ? ["&wrpPye_tyds_IDisposableWrapper"] : (IEnumerable<string>)[],
        .. CollectionTables.InterfacesOf(model, type),
    ];

    private void WriteInterfaces(string set, IReadOnlyList<string> interfaces)
    {
        if (interfaces.Count > 0)
        {
            writer.Line($"static ClassBinding* const {set}_{_symbol}[] = {CppValues.PointerList(interfaces)};");
        }
    }

    private void WriteReferences()
    {
        IReadOnlyList<string> references = CollectionTables.UntypedInterfacesOf(type);
        if (references.Count > 0)
        {
            writer.Line($"static ClassBinding* const references_{_symbol}[] = {CppValues.PointerList(references)};");
        }
    }

    private void WriteCollection()
    {
        if (CollectionTables.InfoOf(type) is { } info)
        {
            writer.Line($"static const CollectionInfo collection_{_symbol} = {info};");
        }
    }

    private void WriteBinding()
    {
        writer.Line($"constinit ClassBinding class_{_symbol} = {{");
        writer.Indented(() =>
        {
            foreach (string line in BindingLines())
            {
                writer.Line(line + ",");
            }
        });
        writer.Line("};").Line();
    }

    private IEnumerable<string> BindingLines()
    {
        yield return $".name = \"{type.PythonName}\"";
        yield return $".short_name = \"{type.Name}\"";
        yield return $".managed_name = u\"{type.ManagedName}\"";
        yield return $".kind = ClassKind::{KindName()}";
        yield return $".host = &PyHost_cs_{_symbol}";
        yield return $".first_cast_slot = {type.SlotOf("btp_TypeOf")}";
        foreach (string line in OptionalLines().OfType<string>())
        {
            yield return line;
        }
    }

    private IEnumerable<string?> OptionalLines()
    {
        bool hasInterfaces = InterfaceList(type.Interfaces).Length > 0;
        bool hasImplicit = InterfaceList(type.Interfaces.Where(use => !use.IsExplicit)).Length > 0;
        yield return When(type.Conversions.Count > 0, ".has_cast_from = true");
        yield return When(type.IsDisposable, ".is_disposable = true");
        yield return When(type.Base is not null && type.Kind == BoundKind.Class, $".base = &class_{type.Base?.Symbol}");
        yield return When(type.Outer is not null, $".outer = &class_{type.Outer?.Symbol}");
        yield return $".methods = wrpPy_tymd_{_symbol}";
        yield return When(_getsetRows.Count > 0, $".getset = wrpPy_typd_{_symbol}");
        yield return When(type.Constructors.Count > 0, $".constructors = &method_{_symbol}_ctor");
        yield return When(hasInterfaces, $".additional_interfaces = additional_{_symbol}");
        yield return When(hasImplicit, $".implicit_interfaces = implicit_{_symbol}");
        yield return When(
            CollectionTables.UntypedInterfacesOf(type).Count > 0, $".references = references_{_symbol}");
        yield return When(_staticRows.Count > 0, $".static_values = wrpPy_sgsf_{_symbol}");
        yield return When(_mixedRows.Count > 0, $".mixed_methods = wrpPy_mxml_{_symbol}");
        if (CollectionTables.ProtocolOf(type) is { } protocol)
        {
            yield return $".protocol = Protocol::{protocol}";
            bool isShared = CollectionTables.InfoOf(type) is null;
            string info = isShared ? CollectionTables.SharedInfoOf(type) : $"&collection_{_symbol}";
            yield return $".collection = {info}";
        }
    }

    private static string? When(bool condition, string line) => condition ? line : null;

    private string KindName() => type.Kind switch
    {
        BoundKind.Struct => "structure",
        BoundKind.Interface => "interface_",
        BoundKind.StaticClass => "static_class",
        _ => "object",
    };
}
