using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An operation would need more memory than its limit allows.</summary>
public class LimitMemoryException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public LimitMemoryException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public LimitMemoryException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
