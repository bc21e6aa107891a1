using System.Collections.Generic;
using System.Linq;

namespace Korvan.WrpGen.Model;

/// <summary>A parameter of a bound method or constructor.</summary>
public sealed record ParameterModel(string PythonName, ValueUse Value, Passing Passing);

/// <summary>One overload: a method or a constructor.</summary>
public sealed record MethodModel(string ManagedName, string PythonName, bool IsStatic)
{
    public required TypeModel Owner { get; init; }

    public required IReadOnlyList<ParameterModel> Parameters { get; init; }

    public required ValueUse Result { get; init; }

    public required DocText Doc { get; init; }

    /// <summary>Its number within its managed name, which is the order of tries.</summary>
    public int Number { get; set; }

    public bool IsConstructor => ManagedName == ".ctor";

    public string Delegate => IsConstructor
        ? $"ctor_{Number:000}_{Owner.Name}"
        : $"call_{Number:000}_{ManagedName}";

    /// <summary>Whether a call of the one can't be told from a call of the other in C#.</summary>
    public bool HidesSameSignature(MethodModel other) =>
        ManagedName == other.ManagedName &&
        Parameters.Select(p => p.Value.CSharpName).SequenceEqual(other.Parameters.Select(p => p.Value.CSharpName));
}

/// <summary>An instance or static property or field.</summary>
public sealed record PropertyModel(string ManagedName, string PythonName, bool IsStatic)
{
    public required TypeModel Owner { get; init; }

    public required ValueUse Value { get; init; }

    /// <summary>What an assignment takes: the same type, but maybe with or without null.</summary>
    public ValueUse Given => field ??= Value with { IsOptional = TakesNull };

    public required bool TakesNull { get; init; }

    public required bool CanWrite { get; init; }

    public required DocText Doc { get; init; }

    public string Getter => (IsStatic ? "getsa_" : "get_") + ManagedName;

    public string Setter => (IsStatic ? "setsa_" : "set_") + ManagedName;
}

/// <summary>A this[int].</summary>
public sealed record IndexerModel(ValueUse Value, bool CanWrite);

public sealed record EnumMemberModel(string PythonName, long Bits, DocText Doc);

/// <summary>An interface that a class implements.</summary>
public sealed record InterfaceUse(TypeModel Interface, bool IsExplicit);

/// <summary>What the XML documentation says of a type or member.</summary>
public sealed record DocText(string Summary, IReadOnlyDictionary<string, string> Parameters, string Returns)
{
    public static DocText None { get; } = new("", new Dictionary<string, string>(), "");

    /// <summary>The managed exceptions by their names, and when they are thrown.</summary>
    public IReadOnlyList<KeyValuePair<string, string>> Raises { get; init; } = [];

    public bool IsEmpty => Summary.Length == 0 && Returns.Length == 0 && Parameters.Count == 0 && Raises.Count == 0;

    /// <summary>This, with what it leaves unsaid taken from another.</summary>
    public DocText Over(DocText other) => new(
        Summary.Length > 0 ? Summary : other.Summary,
        other.Parameters.Where(pair => !Parameters.ContainsKey(pair.Key)).Concat(Parameters).ToDictionary(),
        Returns.Length > 0 ? Returns : other.Returns)
    {
        Raises = [.. Raises, .. other.Raises.Where(one => !Raises.Any(own => own.Key == one.Key))],
    };

    /// <summary>This, for a member with those parameters.</summary>
    public DocText For(IEnumerable<string> parameters) => this with
    {
        Parameters = parameters.Where(Parameters.ContainsKey).ToDictionary(name => name, name => Parameters[name]),
    };
}
