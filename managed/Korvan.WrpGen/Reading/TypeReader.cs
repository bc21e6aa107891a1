using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Reading;

/// <summary>Reads the members of one type.</summary>
internal sealed class TypeReader(
    Type type,
    TypeModel model,
    IReadOnlyDictionary<string, TypeModel> bound,
    ValueReader values,
    XmlDocs docs,
    List<LeftOut> leftOut)
{
    private const BindingFlags Declared =
        BindingFlags.Public | BindingFlags.Instance | BindingFlags.Static | BindingFlags.DeclaredOnly;

    private readonly HashSet<string> _names = [];

    public void Read()
    {
        if (model.Kind == BoundKind.Enum)
        {
            new EnumReader(type, model, docs).Read();
            return;
        }
        model.Base = NearestBoundBase();
        model.IsDisposable = type.HasInterface("System.IDisposable");
        ReadInterfaces();
        if (model.Kind is BoundKind.Class or BoundKind.Struct)
        {
            ProtocolReader.Read(type, model, values);
            ReadConversions();
        }
        ReadConstructors();
        foreach (Type level in Levels())
        {
            ReadProperties(level);
            ReadFields(level);
        }
        foreach (Type level in Levels())
        {
            ReadMethods(level);
        }
        foreach (EventInfo one in type.GetEvents(Declared).InOrder())
        {
            Leave(one.Name, "an event can't call Python");
        }
        Number(model.Constructors);
        Number(model.Methods);
    }

    // The type itself and those bases of the library that no bound type of their own stands for.
    private IEnumerable<Type> Levels()
    {
        yield return type;
        for (Type? level = type.BaseType; level is not null && level.Assembly == type.Assembly; level = level.BaseType)
        {
            if (bound.ContainsKey(level.FullName ?? ""))
            {
                yield break;
            }
            yield return level;
        }
    }

    private TypeModel? NearestBoundBase()
    {
        for (Type? level = type.BaseType; level is not null; level = level.BaseType)
        {
            if (level.FullName is { } name && bound.TryGetValue(name, out TypeModel? found))
            {
                return found;
            }
        }
        return null;
    }

    private void ReadInterfaces()
    {
        foreach (Type one in type.GetInterfaces().OrderBy(i => i.FullName, StringComparer.Ordinal))
        {
            if (one.FullName is { } name && bound.TryGetValue(name, out TypeModel? found))
            {
                model.Interfaces.Add(new InterfaceUse(found, IsExplicit(name.Replace('+', '.'))));
            }
        }
    }

    private bool IsExplicit(string interfaceName)
    {
        const BindingFlags hidden = BindingFlags.NonPublic | BindingFlags.Instance | BindingFlags.DeclaredOnly;
        for (Type? level = type; level is not null; level = level.BaseType)
        {
            if (level.GetMethods(hidden).Any(m => m.Name.StartsWith(interfaceName + ".", StringComparison.Ordinal)))
            {
                return true;
            }
        }
        return false;
    }

    private void ReadConversions()
    {
        foreach (MethodInfo method in type.GetMethods(Declared).InOrder())
        {
            if (method.Name is "op_Explicit" or "op_Implicit" &&
                method.GetParameters()[0].ParameterType.FullName == type.FullName &&
                values.Read(method.ReturnType, isOptional: false, out _) is { } target)
            {
                model.Conversions.Add(target.CSharpName);
            }
        }
    }

    private void ReadConstructors()
    {
        if (model.IsAbstract || model.Kind is BoundKind.Interface or BoundKind.StaticClass)
        {
            return;
        }
        ConstructorInfo[] constructors =
            [.. type.GetConstructors(BindingFlags.Public | BindingFlags.Instance).InOrder()];
        foreach (ConstructorInfo constructor in constructors.Where(c => !c.IsGenerated() && !c.IsForbidden()))
        {
            if (type.Has("RequiredMemberAttribute") && !constructor.Has("SetsRequiredMembersAttribute"))
            {
                Leave(".ctor", "members must be set in the same expression");
                continue;
            }
            AddMethod(model.Constructors, constructor, Void());
        }
        if (model.Kind == BoundKind.Struct && constructors.Length == 0)
        {
            model.Constructors.Add(new MethodModel(".ctor", model.Name, IsStatic: false)
            {
                Owner = model,
                Parameters = [],
                Result = Void(),
                Doc = DocText.None,
            });
        }
    }

    private void ReadProperties(Type level)
    {
        foreach (PropertyInfo property in level.GetProperties(Declared).InOrder())
        {
            if (property.IsGenerated() || property.IsForbidden() || IsExposedByBase(property))
            {
                continue;
            }
            if (property.GetIndexParameters().Length > 0)
            {
                ReadIndexer(property);
                continue;
            }
            MethodInfo? getter = property.GetMethod;
            MethodInfo? setter = property.SetMethod;
            if (getter is not { IsPublic: true })
            {
                Leave(property.Name, "a property that can't be read");
                continue;
            }
            bool canWrite = setter is { IsPublic: true } && !setter.IsInitOnly();
            string name = PythonName.Lower(property.Name);
            AddProperty(property, name, property.PropertyType, getter.IsStatic, canWrite, DocId.Of(property));
        }
    }

    private void ReadFields(Type level)
    {
        foreach (FieldInfo field in level.GetFields(Declared).InOrder())
        {
            if (field.IsGenerated() || field.IsForbidden() || field.IsSpecialName)
            {
                continue;
            }
            bool canWrite = !field.IsStatic && !field.IsInitOnly && !field.IsLiteral;
            AddProperty(
                field, PythonName.Upper(field.Name), field.FieldType, field.IsStatic, canWrite, DocId.Of(field));
        }
    }

    private void AddProperty(
        MemberInfo member, string name, Type valueType, bool isStatic, bool canWrite, string docId)
    {
        if (ProtocolReader.Serves(model, member.Name, name))
        {
            return;
        }
        Type plain = valueType.IsByRef ? valueType.GetElementType()! : valueType;
        if (values.Read(plain, Nullability.MayBe(member), out string reason) is not { } value)
        {
            Leave(member.Name, reason);
            return;
        }
        if (!_names.Add(name))
        {
            Leave(member.Name, $"the name {name} is taken");
            return;
        }
        (isStatic ? model.StaticProperties : model.Properties).Add(new PropertyModel(member.Name, name, isStatic)
        {
            Owner = model,
            Value = value,
            TakesNull = Nullability.MayBeSet(member),
            CanWrite = canWrite && !valueType.IsByRef && !value.IsResultOnly,
            Doc = docs.Of(docId, Elsewhere(member.DeclaringType!, docId)),
        });
    }

    private void ReadIndexer(PropertyInfo property)
    {
        ParameterInfo[] indices = property.GetIndexParameters();
        if (model.Protocol is not CollectionProtocol.None || model.Kind is not (BoundKind.Class or BoundKind.Struct))
        {
            return;
        }
        if (indices.Length != 1 || indices[0].ParameterType.FullName != "System.Int32" ||
            property.GetMethod is not { IsPublic: true })
        {
            Leave(property.Name, "an indexer by something other than one int");
            return;
        }
        if (values.ReadElement(property.PropertyType, out string reason) is not { } value)
        {
            Leave(property.Name, reason);
            return;
        }
        model.Indexer = new IndexerModel(value, property.SetMethod is { IsPublic: true } set && !set.IsInitOnly());
        model.Protocol = CollectionProtocol.Indexer;
        model.ProtocolElement = value;
    }

    private void ReadMethods(Type level)
    {
        foreach (MethodInfo method in level.GetMethods(Declared).InOrder())
        {
            if (method.IsSpecialName || method.IsGenerated() || method.IsForbidden() || IsOverride(method))
            {
                continue;
            }
            string name = PythonName.Lower(method.Name);
            if (ProtocolReader.Serves(model, method.Name, name) || IsFromObject(method))
            {
                continue;
            }
            if (method.IsGenericMethod)
            {
                Leave(Signature(method), "a generic method has no single form");
                continue;
            }
            if (_names.Contains(name))
            {
                Leave(Signature(method), $"the name {name} is taken by a property");
                continue;
            }
            Type result = method.ReturnType.IsByRef ? method.ReturnType.GetElementType()! : method.ReturnType;
            bool isOptional = Nullability.MayBe(method.ReturnParameter);
            if (values.Read(result, isOptional, out string reason) is not { } value)
            {
                Leave(Signature(method), reason);
                continue;
            }
            AddMethod(model.Methods, method, value);
        }
    }

    private void AddMethod(List<MethodModel> methods, MethodBase method, ValueUse result)
    {
        var parameters = new List<ParameterModel>();
        foreach (ParameterInfo parameter in method.GetParameters())
        {
            Passing passing = PassingOf(parameter);
            Type plain = parameter.ParameterType.IsByRef
                ? parameter.ParameterType.GetElementType()!
                : parameter.ParameterType;
            if (values.Read(plain, Nullability.MayBe(parameter), out string reason) is not { } value)
            {
                Leave(Signature(method), reason);
                return;
            }
            if (parameter.GetCustomAttributesData().Any(data => data.AttributeType.Name == "PythonKeptAttribute"))
            {
                value = value with { IsKept = true };
            }
            if (value.IsResultOnly)
            {
                Leave(Signature(method), $"{plain.ManagedName()} comes to Python, but can't be given");
                return;
            }
            if (passing != Passing.In && !CanPassByReference(value))
            {
                Leave(Signature(method), $"a {value.Kind} can't be passed by reference");
                return;
            }
            parameters.Add(new ParameterModel(PythonName.Lower(parameter.Name!), value, passing));
        }
        string name = method.IsConstructor ? model.Name : PythonName.Lower(method.Name);
        methods.Add(new MethodModel(method.Name, name, method.IsStatic)
        {
            Owner = model,
            Parameters = parameters,
            Result = result,
            Doc = docs.Of(DocId.Of(method), Elsewhere(method.DeclaringType!, DocId.Of(method)))
                .For(parameters.Select(parameter => parameter.PythonName)),
        });
    }

    // The members that one overrides or implements, by the names of their documentation.
    private static IEnumerable<string> Elsewhere(Type declaring, string docId)
    {
        for (Type? level = declaring.BaseType; level is not null; level = level.BaseType)
        {
            yield return DocId.In(level, declaring, docId);
        }
        foreach (Type one in declaring.GetInterfaces().OrderBy(i => i.FullName, StringComparer.Ordinal))
        {
            yield return DocId.In(one, declaring, docId);
        }
    }

    private static Passing PassingOf(ParameterInfo parameter) =>
        !parameter.ParameterType.IsByRef || parameter.IsIn ? Passing.In
        : parameter.IsOut ? Passing.Out
        : Passing.Ref;

    // What has one native word or a finished object as its result.
    private static bool CanPassByReference(ValueUse value) => value.Kind is
        (>= ValueKind.Bool and <= ValueKind.Struct) or ValueKind.Object or ValueKind.TimeSpan or ValueKind.Array;

    private bool IsOverride(MethodInfo method) =>
        method.IsVirtual && !method.Attributes.HasFlag(MethodAttributes.NewSlot) && IsDeclaredInBase(method);

    private bool IsExposedByBase(PropertyInfo property) =>
        (property.GetMethod ?? property.SetMethod) is { } accessor && IsOverride(accessor);

    private bool IsDeclaredInBase(MethodInfo method)
    {
        for (Type? level = method.DeclaringType!.BaseType; level is not null; level = level.BaseType)
        {
            bool exposes = bound.ContainsKey(level.FullName ?? "") || level.FullName == "System.Object" ||
                (level.Assembly == type.Assembly && type != method.DeclaringType);
            if (exposes && level.GetMethods(Declared).Any(other => SameSlot(method, other)))
            {
                return true;
            }
        }
        return false;
    }

    private static bool SameSlot(MethodInfo a, MethodInfo b) =>
        a.Name == b.Name &&
        a.GetParameters().Select(p => p.ParameterType.ManagedNameOf())
            .SequenceEqual(b.GetParameters().Select(p => p.ParameterType.ManagedNameOf()));

    // A struct's or interface's own ToString and the like, which every wrapper has already.
    private static bool IsFromObject(MethodInfo method) => (method.Name, method.GetParameters()) switch
    {
        ("ToString" or "GetHashCode" or "GetType", []) => true,
        ("Equals", [{ } other]) => other.ParameterType.FullName == "System.Object",
        _ => false,
    };

    private static void Number(List<MethodModel> methods)
    {
        foreach (IGrouping<string, MethodModel> group in methods.GroupBy(method => method.ManagedName))
        {
            int number = 0;
            foreach (MethodModel method in group)
            {
                method.Number = number++;
            }
        }
    }

    private static string Signature(MethodBase method) =>
        $"{method.Name}({string.Join(", ", method.GetParameters().Select(p => p.ParameterType.ManagedNameOf()))})";

    private static ValueUse Void() => new(ValueKind.Void, "System.Void", "void");

    private void Leave(string member, string reason) =>
        leftOut.Add(new LeftOut($"{model.ManagedName}.{member}", reason));
}
