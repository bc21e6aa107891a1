using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>The base of the exceptions of this library.</summary>
public class FrameworkException : Exception
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public FrameworkException(string message)
        : base(message)
    {
    }

    /// <summary>Gets the message: what failed, where, and how to correct it.</summary>
    public new string Message => base.Message;

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public FrameworkException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
