using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.CSharp;

/// <summary>Writes the classes behind the typed collections of one element type: lists of one-liners.</summary>
internal sealed class GenericWriter
{
    private const string Space = "global::Korvan.WrpGen.Generic.";

    private readonly ElementUse _use;
    private readonly CallbackPositions _callbacks;
    private readonly string _element;
    private readonly string _in;
    private readonly string _out;
    private readonly CodeWriter _writer = new();

    private GenericWriter(ElementUse use, CallbackPositions callbacks)
    {
        _use = use;
        _callbacks = callbacks;
        _element = use.Element.CSharpName;
        _in = InType(use.Element);
        _out = CSharpValues.RecordType(use.Element) ?? CSharpValues.NativeType(use.Element);
    }

    public static string Write(ElementUse use, CallbackPositions callbacks)
    {
        var writer = new GenericWriter(use, callbacks);
        writer.Write();
        return writer._writer.ToString();
    }

    private void Write()
    {
        IReadOnlyList<GenericHost> hosts = GenericHost.For(_use);
        _writer.Line(CSharpEmitter.Header);
        foreach (GenericHost host in hosts)
        {
            _writer.Line($"using {host.Kind}Api = {ApiType(host)};");
        }
        _writer.Line().Line("namespace Korvan.WrpGen.Generic;").Line();
        WriteElement();
        foreach (GenericHost host in hosts)
        {
            WriteHost(host);
        }
    }

    // How Python's collections of this element are read and written.
    private void WriteElement()
    {
        string values = $"{_element}, {Pass(_in)}, {Native()}, {Codec(_use.Element)}";
        string[] positions =
        [
            .. new[] { CallbackTable.List, CallbackTable.Iterator, CallbackTable.Sequence }
                .Select(table => _callbacks.Of(table, _use).ToString(CultureInfo.InvariantCulture)),
            $"PyListUse.{_use.ListUse}",
            _in.EndsWith('*') ? "true" : "false",
        ];
        string made = _use.ReadsLists || _use.ReadsIterators
            ? $"new TypedElement<{values}>({string.Join(", ", positions)})"
            : $"UntypedElement<{_element}>.Instance";
        _writer.Block($"public readonly struct {CSharpValues.ElementClass(_use.Element)} : IElementSource<{_element}>",
            () => _writer.Line($"public static PyElement<{_element}> Element {{ get; }} = {made};"));
        _writer.Line();
    }

    private void WriteHost(GenericHost host)
    {
        _writer.Line($"// {TargetType(host).Replace("global::", "")}");
        _writer.Block($"public static unsafe class {host.ClassPrefix}_{_use.Hash}", () =>
        {
            foreach (string name in host.Delegates)
            {
                WriteDelegate(host, name);
            }
        });
        _writer.Line();
    }

    private void WriteDelegate(GenericHost host, string name)
    {
        (string result, string parameters, string arguments) = Signature(name);
        string call = name.StartsWith("btp_") ? Cast(host, name) : $"{Api(host, name)}({arguments})";
        _writer.Line("[UnmanagedCallersOnly]");
        _writer.Line($"public static {result} {name}({parameters}) => {call};").Line();
    }

    // What the interface of lists shares with a collection is there already.
    private string Api(GenericHost host, string name) => name switch
    {
        "SqSetItemNoChek" => $"{host.Kind}Api.SqSetItemNoCheck",
        "EnsureCapacity" => $"ConcreteListApi<{_element}>.EnsureCapacity",
        _ => $"{host.Kind}Api.{name}",
    };

    private string Cast(GenericHost host, string name)
    {
        string target = TargetType(host);
        return name switch
        {
            "btp_TypeOf" => $"Casts.TypeOf(typeof({target}), type)",
            "btp_CastTo" => $"Casts.ToReference<{target}>(value, result)",
            "btp_CastAs" => $"Casts.AsReference<{target}>(value, result)",
            "btp_ReInterpretObj" => $"Casts.ReinterpretReference<{target}>(handle, result)",
            _ => $"Casts.IsAssignable<{target}>(value)",
        };
    }

    private (string Result, string Parameters, string Arguments) Signature(string name)
    {
        string value = $"{_in} value";
        string pass = _in.EndsWith('*') ? "(nint)value" : "value";
        return name switch
        {
            "SqLength" or "Clear" or "Reverse" =>
                (name == "SqLength" ? "int" : "void", "nint handle", "handle"),
            "MoveNext" => ("int", $"nint handle, {_out}* result", "handle, result"),
            "GetEnumerator" => ("int", "nint handle, PyObjectOutArg* result", "handle, result"),
            "Add" => ("void", $"nint handle, {value}", $"handle, {pass}"),
            "Remove" or "SqContains" or "CountOf" => ("int", $"nint handle, {value}", $"handle, {pass}"),
            "SqGetItem" => ("int", $"nint handle, int index, {_out}* result", "handle, index, result"),
            "SqGetItemNoCheck" => (_out, "nint handle, int index", "handle, index"),
            "SqSetItem" => ("int", $"nint handle, int index, {value}", $"handle, index, {pass}"),
            "SqSetItemNoChek" or "Insert" =>
                ("void", $"nint handle, int index, {value}", $"handle, index, {pass}"),
            "RemoveAt" => ("int", "nint handle, int index", "handle, index"),
            "Pop" => ("int", $"nint handle, int hasIndex, int index, {_out}* result",
                "handle, hasIndex, index, result"),
            "SqInplaceConcat" => ("int", "nint handle, VariantArg* other", "handle, other"),
            "SqInplaceRepeat" => ("void", "nint handle, int count", "handle, count"),
            "MpSetItems" => ("int", "nint handle, VariantArg* value, int start, int count, int step",
                "handle, value, start, count, step"),
            "MpRemoveItems" => ("void", "nint handle, int start, int count, int step",
                "handle, start, count, step"),
            "Sort" => ("void", "nint handle, int reverse", "handle, reverse"),
            "IndexBy" => ("int",
                $"nint handle, int hasStart, int start, int hasStop, int stop, {value}",
                $"handle, hasStart, start, hasStop, stop, {pass}"),
            "EnsureCapacity" => ("void", "nint handle, int capacity", "handle, capacity"),
            "btp_TypeOf" => ("int", "nint* type", ""),
            "btp_CastTo" => ("int", "VariantArg* value, nint* result", ""),
            "btp_CastAs" => ("int", "nint value, nint* result", ""),
            "btp_ReInterpretObj" => ("int", "nint handle, nint* result", ""),
            _ => ("int", "nint value", ""),
        };
    }

    private string TargetType(GenericHost host) => host.Kind switch
    {
        "Iter" => $"global::System.Collections.Generic.IEnumerator<{_element}>",
        "Iterable" => $"global::System.Collections.Generic.IEnumerable<{_element}>",
        "List" => $"global::System.Collections.Generic.List<{_element}>",
        "Array" => $"{_element}[]",
        "ICol" => $"global::System.Collections.Generic.ICollection<{_element}>",
        "IList" => $"global::System.Collections.Generic.IList<{_element}>",
        "IRoCol" => $"global::System.Collections.Generic.IReadOnlyCollection<{_element}>",
        _ => $"global::System.Collections.Generic.IReadOnlyList<{_element}>",
    };

    // An alias is read before the names that other directives bring in.
    private string Native() => CSharpValues.RecordType(_use.Element)?.StartsWith("Py") == true
        ? "global::Korvan.WrpGen.Interop." + _out
        : _out;

    private string ApiType(GenericHost host)
    {
        string result = Native();
        string native = $"{_element}, {Pass(_in)}, {result}, {Codec(_use.Element)}";
        string list = $"{Space}ListApi<{TargetType(host)}, {_element}, ";
        string tail = $", {Pass(_in)}, {result}, {Codec(_use.Element)}>";
        return host.Kind switch
        {
            "Iter" => $"{Space}EnumeratorApi<{native}>",
            "Iterable" => $"{Space}EnumerableApi<{_element}>",
            "ICol" => $"{Space}CntCollectionApi<{native}>",
            "IRoCol" => $"{Space}ReadOnlyCollectionApi<{native}>",
            "List" => $"{list}{Space}ListAccess<{_element}>{tail}",
            "Array" => $"{list}{Space}ArrayAccess<{_element}>{tail}",
            "IList" => $"{list}{Space}InterfaceAccess<{_element}>{tail}",
            _ => $"{list}{Space}ReadOnlyAccess<{_element}>{tail}",
        };
    }

    private static string Pass(string type) => type.EndsWith('*') ? "nint" : type;

    private static string InType(ValueUse element)
    {
        string parameter = CSharpValues.Arguments(element, "value").Single();
        return parameter[..parameter.IndexOf(' ')];
    }

    private static string Codec(ValueUse element) =>
        Space + element.Kind switch
        {
            ValueKind.Bool => "BoolCodec",
            ValueKind.Char => "CharCodec",
            ValueKind.String => "StringCodec",
            ValueKind.Bytes => "BytesCodec",
            ValueKind.Object => "ObjectCodec",
            ValueKind.Enum => $"EnumCodec<{element.CSharpName}, {CSharpValues.NativeType(element)}>",
            ValueKind.Class when element.IsMostDerived => $"DerivedCodec<{element.CSharpName}>",
            ValueKind.Class => $"ClassCodec<{element.CSharpName}>",
            ValueKind.Struct => $"StructCodec<{element.CSharpName}>",
            ValueKind.Interface => $"InterfaceCodec<{element.CSharpName}>",
            ValueKind.Stream => "StreamCodec",
            _ when element.IsTypedCollection => $"{element.Kind}Codec<{element.Element!.CSharpName}, " +
                $"{Space}{CSharpValues.ElementClass(element.Element)}>",
            ValueKind.DateTime => "DateTimeCodec",
            ValueKind.DateTimeOffset => "DateTimeOffsetCodec",
            ValueKind.Decimal => "DecimalCodec",
            ValueKind.Version => "VersionCodec",
            ValueKind.TimeSpan => "TimeSpanCodec",
            ValueKind.Guid => "GuidCodec",
            _ => $"ValueCodec<{element.CSharpName}>",
        };
}
