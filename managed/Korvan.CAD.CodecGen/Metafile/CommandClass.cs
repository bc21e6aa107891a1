using System.Collections.Generic;
using System.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>A declared command, a base of commands, or a group of parameters that a list holds.</summary>
internal sealed class CommandClass
{
    private const string Root = "Command";

    private readonly INamedTypeSymbol _type;

    public CommandClass(INamedTypeSymbol type)
    {
        _type = type;
        Parameters = [.. ParametersOf(type)];
        AttributeData? attribute = Attribute(type, "CgmCommandAttribute");
        IsGroup = attribute is null;
        Element = attribute is null ? null : CommandElement.From(attribute);
        BaseLast = Named(attribute, "BaseLast") is true;
        Default = Named(attribute, "Default") as string;
        Constructor = [.. ConstructorNames(type).Select(name => Find(type, name))];
    }

    public string Name => _type.Name;

    public string FullName => _type.ToDisplayString();

    public string Namespace => _type.ContainingNamespace.ToDisplayString();

    /// <summary>The class that this one is nested in.</summary>
    public string? Outer => _type.ContainingType?.Name;

    public bool IsAbstract => _type.IsAbstract;

    public bool IsSealed => _type.IsSealed;

    public bool IsGroup { get; }

    public CommandElement? Element { get; }

    /// <summary>The parameters that the class itself declares, in their order.</summary>
    public IReadOnlyList<CommandParameter> Parameters { get; }

    /// <summary>The properties that the second constructor sets.</summary>
    public IReadOnlyList<CommandParameter> Constructor { get; }

    /// <summary>Whether the parameters of the base come behind those of the class.</summary>
    public bool BaseLast { get; }

    /// <summary>What the constructor without parameters makes, for its documentation.</summary>
    public string? Default { get; }

    /// <summary>Whether a base class has parameters.</summary>
    public bool HasBase => !IsGroup && _type.BaseType is { Name: not Root };

    public bool HasParameters => AllParameters().Any() || Declares("Exchange");

    public bool WritesExchange => Parameters.Count > 0 && !Declares("Exchange");

    public bool WritesText => AllParameters().Any() && !IsAbstract && !Declares("ToString");

    /// <summary>The parameters of the class and its bases in the order of files.</summary>
    public IEnumerable<CommandParameter> AllParameters()
    {
        if (!HasBase)
        {
            return Parameters;
        }

        IEnumerable<CommandParameter> inherited = new CommandClass(_type.BaseType!).AllParameters();
        return BaseLast ? Parameters.Concat(inherited) : inherited.Concat(Parameters);
    }

    private static IEnumerable<CommandParameter> ParametersOf(INamedTypeSymbol type) =>
        type.GetMembers().OfType<IPropertySymbol>().Select(CommandParameter.From).OfType<CommandParameter>();

    private static IEnumerable<string> ConstructorNames(INamedTypeSymbol type)
    {
        AttributeData? attribute = Attribute(type, "CgmConstructorAttribute");
        return attribute is null ? [] : attribute.ConstructorArguments[0].Values.Select(value => (string)value.Value!);
    }

    private static CommandParameter Find(INamedTypeSymbol type, string property)
    {
        for (INamedTypeSymbol? current = type; current is not null; current = current.BaseType)
        {
            if (ParametersOf(current).FirstOrDefault(parameter => parameter.Name == property) is { } found)
            {
                return found;
            }
        }

        throw new System.InvalidOperationException($"{type.Name} has no parameter {property}");
    }

    private static AttributeData? Attribute(INamedTypeSymbol type, string name) =>
        type.GetAttributes().FirstOrDefault(attribute => attribute.AttributeClass?.Name == name);

    private static object? Named(AttributeData? attribute, string name) =>
        attribute?.NamedArguments.FirstOrDefault(argument => argument.Key == name).Value.Value;

    private bool Declares(string method) => _type.GetMembers(method).OfType<IMethodSymbol>().Any();
}
