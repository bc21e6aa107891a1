using System.Collections.Generic;
using System.Linq;
using Mono.Cecil;
using Mono.Cecil.Cil;

namespace Korvan.CAD.Tests.Surface;

/// <summary>Which type of a compiled assembly refers to which, by signatures, attributes and method bodies.</summary>
internal sealed class TypeGraph
{
    private readonly Dictionary<string, SortedSet<string>> _references = [];
    private readonly string _assembly;

    private TypeGraph(AssemblyDefinition assembly)
    {
        _assembly = assembly.Name.Name;
        foreach (TypeDefinition type in assembly.MainModule.Types)
        {
            Walk(type, type.FullName);
        }
    }

    /// <summary>Gets the top-level types, each with the top-level types that it refers to.</summary>
    internal IReadOnlyDictionary<string, SortedSet<string>> References => _references;

    internal static TypeGraph Read(string path)
    {
        using AssemblyDefinition assembly = AssemblyDefinition.ReadAssembly(path);
        return new TypeGraph(assembly);
    }

    private void Walk(TypeDefinition type, string owner)
    {
        _references.TryAdd(owner, []);
        Add(owner, type.BaseType);
        Add(owner, type.CustomAttributes);
        AddAll(owner, type.Interfaces.Select(implemented => implemented.InterfaceType));
        AddConstraints(owner, type.GenericParameters);
        foreach (FieldDefinition field in type.Fields)
        {
            Add(owner, field.FieldType);
            Add(owner, field.CustomAttributes);
        }

        foreach (PropertyDefinition property in type.Properties)
        {
            Add(owner, property.CustomAttributes);
        }

        foreach (MethodDefinition method in type.Methods)
        {
            AddMethod(owner, method);
        }

        foreach (TypeDefinition nested in type.NestedTypes)
        {
            Walk(nested, owner);
        }
    }

    private void AddMethod(string owner, MethodDefinition method)
    {
        AddSignature(owner, method);
        Add(owner, method.CustomAttributes);
        AddConstraints(owner, method.GenericParameters);
        if (!method.HasBody)
        {
            return;
        }

        AddAll(owner, method.Body.Variables.Select(variable => variable.VariableType));
        AddAll(owner, method.Body.ExceptionHandlers.Select(handler => handler.CatchType));
        foreach (Instruction instruction in method.Body.Instructions)
        {
            AddOperand(owner, instruction.Operand);
        }
    }

    private void AddOperand(string owner, object? operand)
    {
        switch (operand)
        {
            case TypeReference type:
                Add(owner, type);
                break;
            case FieldReference field:
                Add(owner, field.DeclaringType);
                Add(owner, field.FieldType);
                break;
            case MethodReference method:
                Add(owner, method.DeclaringType);
                AddSignature(owner, method);
                if (method is GenericInstanceMethod generic)
                {
                    AddAll(owner, generic.GenericArguments);
                }

                break;
        }
    }

    private void AddSignature(string owner, MethodReference method)
    {
        Add(owner, method.ReturnType);
        AddAll(owner, method.Parameters.Select(parameter => parameter.ParameterType));
    }

    private void AddConstraints(string owner, IEnumerable<GenericParameter> parameters)
    {
        AddAll(owner, parameters.SelectMany(parameter => parameter.Constraints)
            .Select(constraint => constraint.ConstraintType));
    }

    private void Add(string owner, IEnumerable<CustomAttribute> attributes)
    {
        AddAll(owner, attributes.Select(attribute => attribute.AttributeType));
    }

    private void AddAll(string owner, IEnumerable<TypeReference?> types)
    {
        foreach (TypeReference? type in types)
        {
            Add(owner, type);
        }
    }

    private void Add(string owner, TypeReference? type)
    {
        switch (type)
        {
            case null or GenericParameter:
                return;
            case GenericInstanceType generic:
                AddAll(owner, generic.GenericArguments);
                Add(owner, generic.ElementType);
                return;
            case FunctionPointerType pointer:
                Add(owner, pointer.ReturnType);
                AddAll(owner, pointer.Parameters.Select(parameter => parameter.ParameterType));
                return;
            case TypeSpecification specification:
                Add(owner, specification.ElementType);
                return;
        }

        TypeReference top = type;
        while (top.DeclaringType is not null)
        {
            top = top.DeclaringType;
        }

        bool own = top.Scope is ModuleDefinition || top.Scope.Name == _assembly;
        if (own && top.FullName != owner)
        {
            _references[owner].Add(top.FullName);
        }
    }
}
